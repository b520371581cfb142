import QtQuick
import Loadwick

// All scanned repositories side by side, or why there is nothing to compare yet.
Item {
    id: page

    required property ComparePresenter compare
    required property PageExport exporter
    readonly property bool isEmpty: page.compare.columnCount === 0

    PageAppear {
        anchors.fill: parent
        visible: page.isEmpty

        CompareHeader {
            anchors { horizontalCenter: parent.horizontalCenter; top: parent.top; topMargin: AppTheme.pageMargin }
            width: Math.min(AppTheme.contentWidth, page.width - 2 * AppTheme.pageMargin)
        }
        ScanEmptyState {
            anchors.fill: parent
            title: page.compare.emptyTitle
            detail: page.compare.emptyText
        }
    }
    // Created when the page is first visible.
    Loader {
        id: report

        property bool wasShown: false

        anchors.fill: parent
        active: report.wasShown && !page.isEmpty
        Component.onCompleted: {
            report.setSource("CompareReport.qml", { compare: page.compare, exporter: page.exporter });
            report.wasShown = page.visible;
        }
    }

    onVisibleChanged: if (page.visible) report.wasShown = true
}
