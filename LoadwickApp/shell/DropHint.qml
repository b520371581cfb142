import QtQuick
import Loadwick

// Says that what is dragged over the window would be taken.
Rectangle {
    radius: AppTheme.cardRadius
    color: Qt.alpha(AppTheme.window, 0.86)
    border { width: 2; color: AppTheme.accent }

    Column {
        anchors.centerIn: parent
        spacing: AppTheme.cardSpace

        StateIcon {
            anchors.horizontalCenter: parent.horizontalCenter
            symbol: "folder"
            tint: AppTheme.accent
        }
        PlainLabel {
            text: qsTr("Drop the folder to choose it")
            font: AppTheme.headlineFont
        }
    }
}
