import QtQuick
import QtQuick.Layouts
import Loadwick

// How much of the band scale the total leaves free. An illustration, as the card itself says.
ReportSurface {
    id: card

    required property BandPresenter band
    readonly property alias animatedScore: gauge.animatedScore

    SideBySide {
        Layout.fillWidth: true
        columnSpacing: AppTheme.pageMargin

        ScoreGauge {
            id: gauge
            band: card.band
        }
        ColumnLayout {
            Layout.fillWidth: true
            Layout.minimumWidth: AppTheme.copyMinimumWidth
            Layout.alignment: Qt.AlignVCenter
            spacing: AppTheme.smallSpace

            SectionHeader {
                Layout.fillWidth: true
                title: qsTr("Context headroom")
                detail: card.band.scoreDetail
            }
            StatusPill {
                title: qsTr("Illustrative score — not a measurement")
                symbol: ""
                tint: AppTheme.bandTexts[card.band.band]
                font: AppTheme.captionStrongFont
            }
            PlainLabel {
                Layout.fillWidth: true
                text: card.band.scoreCaption
                font: AppTheme.captionFont
                secondary: true
                wrapMode: Text.Wrap
            }
        }
    }
}
