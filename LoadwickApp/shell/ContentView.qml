import QtQuick
import QtQuick.Templates
import QtQuick.Layouts
import Loadwick

// The window's two columns: the sidebar, and the toolbar over the chosen page.
SplitView {
    id: view

    required property ContentPresenter content
    required property OverviewPresenter overview
    required property TrendsPresenter trends
    required property ComparePresenter compare
    required property RecentRepositories recent
    required property PageExport overviewExport
    required property PageExport trendsExport
    required property PageExport compareExport
    readonly property real leastWidth: AppTheme.sidebarMinimumWidth + AppTheme.hairline + AppTheme.detailMinimumWidth
    readonly property bool isMirrored: Application.layoutDirection === Qt.RightToLeft

    function showLatestChange() {
        view.trends.changes.chooseNewest();
        view.content.showTrends();
        const page = trendsPage.item as TrendsView;
        if (page)
            page.goToChanges();
    }

    // The view itself does not mirror its columns.
    function placeSidebar() {
        if (view.isMirrored === (view.itemAt(0) === sidebar))
            view.moveItem(0, 1);
    }

    function takeKeyboard() { keys.begin(); }

    orientation: Qt.Horizontal
    Component.onCompleted: view.placeSidebar()
    onIsMirroredChanged: view.placeSidebar()

    Connections {
        target: view.overview.latestChange

        function onOpened() { view.showLatestChange(); }
    }

    handle: Rectangle {
        id: divider

        implicitWidth: AppTheme.hairline
        color: AppTheme.separator

        // Wider than it looks, so that it is easy to grab.
        containmentMask: Item {
            x: -AppTheme.tightSpace
            width: 2 * AppTheme.tightSpace + AppTheme.hairline
            height: divider.height
        }
    }

    Sidebar {
        id: sidebar

        SplitView.preferredWidth: AppTheme.scaled(250)
        SplitView.minimumWidth: AppTheme.sidebarMinimumWidth
        // A window that narrows takes its width from a wide sidebar, not from the page.
        SplitView.maximumWidth: Math.max(AppTheme.sidebarMinimumWidth, view.width - AppTheme.detailMinimumWidth - AppTheme.hairline)
        content: view.content
    }

    ColumnLayout {
        id: detail

        SplitView.fillWidth: true
        SplitView.minimumWidth: AppTheme.detailMinimumWidth
        spacing: 0

        CommandBar {
            Layout.fillWidth: true
            content: view.content
            recent: view.recent
        }
        Hairline { Layout.fillWidth: true }
        StackLayout {
            id: pages

            currentIndex: view.content.pageIndex
            onCurrentIndexChanged: keys.leaveHiddenPage()

            OverviewView {
                overview: view.overview
                disclosure: view.content.allowanceDisclosure
                exporter: view.overviewExport
            }
            LatePage {
                id: trendsPage
                isShown: pages.currentIndex === 1
                onWanted: trendsPage.setSource("TrendsView.qml", { trends: view.trends, exporter: view.trendsExport })
            }
            LatePage {
                id: comparePage
                isShown: pages.currentIndex === 2
                onWanted: comparePage.setSource("CompareView.qml", { compare: view.compare, exporter: view.compareExport })
            }
        }
        ContentKeys {
            id: keys

            start: sidebar.name
            sidebar: sidebar.pages
            detail: detail
            // Not by the layout's index: Qt 6.8 does not notify of the first one.
            page: pages.children[view.content.pageIndex] as Item
        }
    }
}
