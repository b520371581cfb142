import QtQuick
import QtQuick.Layouts
import Loadwick

// The chosen repository, and the pages that can be shown of it.
Rectangle {
    id: sidebar

    required property ContentPresenter content
    readonly property alias pages: pages

    color: AppTheme.sidebar

    ColumnLayout {
        anchors { fill: parent; topMargin: AppTheme.cardSpace }
        spacing: 0

        SidebarRepository {
            Layout.fillWidth: true
            Layout.leftMargin: AppTheme.cardSpace
            Layout.rightMargin: AppTheme.cardSpace
            content: sidebar.content
        }
        PlainLabel {
            Layout.fillWidth: true
            Layout.leftMargin: AppTheme.cardSpace
            Layout.topMargin: AppTheme.pageMargin
            Layout.bottomMargin: AppTheme.tightSpace
            text: qsTr("Pages")
            font: AppTheme.captionStrongFont
            secondary: true
        }
        SidebarPages {
            id: pages

            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.leftMargin: AppTheme.smallSpace
            Layout.rightMargin: AppTheme.smallSpace
            content: sidebar.content
        }
    }
}
