import QtQuick
import QtQuick.Layouts
import Loadwick

// The words of a confirmation dialog, over its two buttons.
ColumnLayout {
    id: confirmation

    required property string title
    required property string message
    required property string action

    signal cancelled()
    signal confirmed()

    // With the focus ring, as if by the keyboard.
    function focusCancel() {
        cancel.forceActiveFocus(Qt.TabFocusReason);
    }

    spacing: AppTheme.smallSpace

    TitleLabel {
        Layout.fillWidth: true
        text: confirmation.title
    }
    PlainLabel {
        Layout.fillWidth: true
        text: confirmation.message
        secondary: true
        wrapMode: Text.Wrap
    }
    GridLayout {
        Layout.alignment: Qt.AlignRight
        Layout.topMargin: AppTheme.cardSpace
        columnSpacing: AppTheme.mediumSpace
        columns: confirmation.width < cancel.implicitWidth + columnSpacing + confirm.implicitWidth ? 1 : 2

        PushButton {
            id: cancel

            objectName: "cancel"
            title: qsTr("Cancel")
            outlined: true
            onClicked: confirmation.cancelled()
        }
        PushButton {
            id: confirm

            objectName: "action"
            title: confirmation.action
            destructive: true
            onClicked: confirmation.confirmed()
        }
    }
}
