import QtQuick
import Loadwick

// Says whether what is dragged over the window, or was dropped, is taken.
Rectangle {
    id: hint

    required property string words

    Accessible.role: Accessible.AlertMessage
    Accessible.name: hint.words
    radius: AppTheme.cardRadius
    color: Qt.alpha(AppTheme.window, 0.95)
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
            anchors.horizontalCenter: parent.horizontalCenter
            text: hint.words
            Accessible.ignored: true
            font: AppTheme.headlineFont
        }
    }
}
