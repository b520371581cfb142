import QtQuick
import QtQuick.Controls
import Loadwick

// Beside the command that chooses a folder: the ones that were chosen and scanned before.
AbstractButton {
    id: button

    required property ContentPresenter content
    required property RecentRepositories recent

    implicitWidth: AppTheme.controlHeight
    implicitHeight: AppTheme.controlHeight
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    enabled: button.content.canChoose
    opacity: enabled ? 1 : AppTheme.disabledOpacity
    visible: button.recent.count > 0
    Accessible.role: Accessible.ButtonMenu
    Accessible.name: qsTr("Scanned repositories")
    Keys.onReturnPressed: event => { if (!event.isAutoRepeat) button.clicked(); }
    Keys.onEnterPressed: event => { if (!event.isAutoRepeat) button.clicked(); }
    Keys.onDownPressed: button.clicked()
    onClicked: {
        button.recent.look();
        menu.popup(button, button.width - menu.width, button.height + AppTheme.tightSpace);
    }

    contentItem: Item {
        Symbol {
            anchors.centerIn: parent
            name: "chevron.down"
            tint: AppTheme.text
        }
    }
    background: Rectangle {
        radius: AppTheme.controlRadius
        color: button.down || menu.visible ? AppTheme.pressedFill
             : button.hovered ? AppTheme.hoverFill : "transparent"
    }

    HoverHandler {
        enabled: button.enabled
        cursorShape: Qt.PointingHandCursor
    }
    FocusRing { shown: button.visualFocus }
    PlainToolTip {
        words: qsTr("Choose a repository that was scanned before")
        visible: !menu.visible && (button.hovered || button.visualFocus)
    }

    RecentMenu {
        id: menu
        recent: button.recent
    }
}
