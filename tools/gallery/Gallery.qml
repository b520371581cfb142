import QtQuick
import QtQuick.Layouts
import Loadwick

Rectangle {
    id: gallery

    implicitWidth: 900
    implicitHeight: 1420
    color: AppTheme.window

    Rectangle {
        width: 250
        height: parent.height
        color: AppTheme.sidebar

        GallerySidebar {
            anchors { fill: parent; margins: AppTheme.cardSpace }
        }
    }

    ColumnLayout {
        anchors { fill: parent; leftMargin: 250 + AppTheme.pageMargin; rightMargin: AppTheme.pageMargin; topMargin: AppTheme.cardSpace; bottomMargin: AppTheme.pageMargin }
        spacing: AppTheme.cardSpace

        GalleryButtons { Layout.fillWidth: true }
        Hairline { Layout.fillWidth: true }
        GalleryCards { Layout.fillWidth: true }
        GalleryStates { Layout.fillWidth: true; Layout.fillHeight: true }
    }
}
