import QtQuick
import Loadwick

// Every scanned repository beside the others.
PageAppear {
    PageHeader {
        anchors { left: parent.left; right: parent.right; top: parent.top; margins: AppTheme.pageMargin }
        title: "Compare"
        detail: "The latest recorded scan of each repository, side by side, category for category."
    }
    ScanEmptyState {
        anchors.fill: parent
        title: "No recorded scans yet"
        detail: "Scan two repositories and their latest results appear here side by side."
    }
}
