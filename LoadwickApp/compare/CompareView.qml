import QtQuick
import Loadwick

// Every scanned repository beside the others.
PageAppear {
    id: page

    required property ComparePresenter compare

    PageHeader {
        anchors { horizontalCenter: parent.horizontalCenter; top: parent.top; topMargin: AppTheme.pageMargin }
        width: Math.min(AppTheme.contentWidth, page.width - 2 * AppTheme.pageMargin)
        title: "Compare"
        detail: "The latest recorded scan of each repository, side by side, category for category."
    }
    ScanEmptyState {
        anchors.fill: parent
        title: page.compare.emptyTitle
        detail: page.compare.emptyText
        visible: page.compare.emptyText.length > 0
    }
}
