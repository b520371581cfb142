import QtQuick
import QtQuick.Layouts
import Loadwick

// Every scanned repository beside the others, or why there is nothing to compare yet.
Item {
    id: page

    required property ComparePresenter compare
    required property PageExport exporter
    readonly property bool isEmpty: page.compare.columnCount === 0

    component Header: PageHeader {
        title: qsTr("Compare")
        detail: qsTr("The latest recorded scan of each repository, side by side, category for category.")
    }

    PageAppear {
        anchors.fill: parent
        visible: page.isEmpty

        Header {
            anchors { horizontalCenter: parent.horizontalCenter; top: parent.top; topMargin: AppTheme.pageMargin }
            width: Math.min(AppTheme.contentWidth, page.width - 2 * AppTheme.pageMargin)
        }
        ScanEmptyState {
            anchors.fill: parent
            title: page.compare.emptyTitle
            detail: page.compare.emptyText
        }
    }
    // Two repositories or more: who is heaviest, each for itself, all on one axis. Made when the page is
    // first looked at.
    Loader {
        id: report

        property bool wasShown: false

        anchors.fill: parent
        active: report.wasShown && !page.isEmpty
        sourceComponent: PageColumn {
            id: column

            Header { Layout.fillWidth: true }
            Leaderboard {
                Layout.fillWidth: true
                rows: page.compare.leaderboard
                viewport: column.viewport
            }
            ColumnGrid {
                Layout.fillWidth: true
                compare: page.compare
                viewport: column.viewport
            }
            CombinedCard {
                Layout.fillWidth: true
                compare: page.compare
                exporter: page.exporter
                viewport: column.viewport
            }
        }
    }

    Component.onCompleted: report.wasShown = page.visible
    onVisibleChanged: if (page.visible) report.wasShown = true
}
