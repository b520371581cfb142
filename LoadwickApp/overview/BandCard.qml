import QtQuick
import QtQuick.Layouts
import Loadwick

// The one number, the band it falls in, and where in that band it sits.
ReportSurface {
    id: card

    required property BandPresenter band

    spacing: AppTheme.cardSpace

    SideBySide {
        Layout.fillWidth: true

        BandLead {
            Layout.fillWidth: true
            Layout.minimumWidth: AppTheme.copyMinimumWidth
            Layout.alignment: Qt.AlignVCenter
            band: card.band
        }
        TotalMetric { band: card.band }
    }
    BandMeter {
        Layout.fillWidth: true
        band: card.band
    }
    CollapsibleSection {
        Layout.fillWidth: true
        title: qsTr("Why these bands?")
        // An aside, not a section of its own.
        titleFont: AppTheme.subheadlineStrongFont

        SelectableText {
            Layout.fillWidth: true
            text: card.band.anchorNote
            secondary: true
        }
    }
}
