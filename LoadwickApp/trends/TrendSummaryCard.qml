import QtQuick
import QtQuick.Layouts
import Loadwick

// The repository's latest total, how far it has moved, and what changed from one scan to another.
ReportSurface {
    id: card

    required property TrendSummaryPresenter summary
    required property ScanChangesPresenter changes
    required property Flickable viewport
    // All three are of equal width, whatever their content.
    readonly property real tileWidth: Math.max(latest.implicitWidth, band.implicitWidth, drift.implicitWidth)

    // The section below the metrics; null without one.
    readonly property ScanChangesSection changesSection: section.item as ScanChangesSection

    SectionHeader {
        Layout.fillWidth: true
        title: qsTr("Where this repository landed")
        detail: qsTr("Read from the recorded scans above.")
    }
    SideBySide {
        Layout.fillWidth: true

        MetricTile {
            id: latest

            Layout.fillWidth: true
            Layout.preferredWidth: card.tileWidth
            title: qsTr("Latest scan")
            value: card.summary.latest
            caption: card.summary.range
        }
        MetricTile {
            id: band

            Layout.fillWidth: true
            Layout.preferredWidth: card.tileWidth
            title: qsTr("Band")
            value: card.summary.bandTitle
            caption: card.summary.range
            tint: AppTheme.bandTexts[card.summary.band]
        }
        MetricTile {
            id: drift

            Layout.fillWidth: true
            Layout.preferredWidth: card.tileWidth
            title: qsTr("Drift across recorded scans")
            value: card.summary.drift
            caption: card.summary.driftCaption
        }
    }
    Loader {
        id: section

        Layout.fillWidth: true
        active: card.changes.hasChanges
        visible: active
        Component.onCompleted: section.setSource("ScanChangesSection.qml", {
            changes: card.changes,
            viewport: card.viewport,
            room: Qt.binding(() => card.width - 2 * AppTheme.cardPadding)
        })
    }
}
