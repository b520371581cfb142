import QtQuick
import QtQuick.Layouts
import Loadwick

// Where the repository's total stands now, and how far it has moved.
ReportSurface {
    id: card

    required property TrendSummaryPresenter summary

    SectionHeader {
        Layout.fillWidth: true
        title: qsTr("Where this repository landed")
        detail: qsTr("Read from the recorded scans above.")
    }
    SideBySide {
        Layout.fillWidth: true

        MetricTile {
            Layout.fillWidth: true
            title: qsTr("Latest scan")
            value: card.summary.latest
            caption: card.summary.range
        }
        MetricTile {
            Layout.fillWidth: true
            title: qsTr("Band")
            value: card.summary.bandTitle
            caption: card.summary.range
            tint: AppTheme.bandTexts[card.summary.band]
        }
        MetricTile {
            Layout.fillWidth: true
            title: qsTr("Drift across recorded scans")
            value: card.summary.drift
            caption: card.summary.driftCaption
        }
    }
}
