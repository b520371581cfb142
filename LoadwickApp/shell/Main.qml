import QtQuick
import QtQuick.Templates
import Loadwick

ApplicationWindow {
    id: window

    required property ContentPresenter content
    required property OverviewPresenter overview
    required property TrendsPresenter trends
    required property ComparePresenter compare
    required property OnboardingPresenter onboarding
    required property FolderDrop folderDrop
    required property RecentRepositories recent
    required property PageExport overviewExport
    required property PageExport trendsExport
    required property PageExport compareExport

    title: qsTr("Loadwick")
    width: 1180
    height: 780
    minimumWidth: AppTheme.windowMinimumWidth
    minimumHeight: AppTheme.windowMinimumHeight
    color: AppTheme.window
    font: AppTheme.bodyFont
    LayoutMirroring.enabled: Application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true

    ModalGround {
        id: ground

        anchors.fill: parent
        Accessible.role: Accessible.Pane

        SidewaysScroll {
            id: sideways

            anchors.fill: parent
            leastWidth: contents.leastWidth

            ContentView {
                id: contents

                width: sideways.contentWidth
                height: sideways.height
                content: window.content
                overview: window.overview
                trends: window.trends
                compare: window.compare
                recent: window.recent
                overviewExport: window.overviewExport
                trendsExport: window.trendsExport
                compareExport: window.compareExport
            }
        }
        DropTarget {
            anchors.fill: parent
            folderDrop: window.folderDrop
            ground: ground
        }
    }
    // Not on the ground: it is heard over a modal sheet, too.
    Announcements {
        content: window.content
        overview: window.overview
        onboarding: window.onboarding
    }
    // Created on demand: most launches do not need it.
    Loader {
        id: sheet

        readonly property bool isDue: window.onboarding.isPresented

        onIsDueChanged: {
            if (sheet.isDue) {
                sheet.setSource("OnboardingView.qml", { onboarding: window.onboarding });
            } else {
                sheet.source = "";
                contents.takeKeyboard();
            }
        }
    }
}
