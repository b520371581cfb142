import QtQuick
import QtQuick.Layouts
import Loadwick
import LoadwickGallery

// Totals in every band, as meter and as score.
GridLayout {
    id: meters

    component Metered: ReportSurface {
        id: card

        required property BandPresenter band

        Layout.fillWidth: true
        Layout.preferredWidth: 1

        RowLayout {
            Layout.fillWidth: true
            spacing: AppTheme.pageMargin

            ScoreGauge { band: card.band }
            BandMeter { Layout.fillWidth: true; band: card.band }
        }
    }

    columns: 2
    columnSpacing: AppTheme.cardSpace
    rowSpacing: AppTheme.cardSpace

    Metered { band: GallerySamples.zero }
    Metered { band: GallerySamples.lean }
    Metered { band: GallerySamples.heavy }
    Metered { band: GallerySamples.excessive }
}
