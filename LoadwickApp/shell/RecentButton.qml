import QtQuick
import QtQuick.Templates
import Loadwick

// Beside the command that chooses a folder: the repositories chosen and scanned before.
AbstractButton {
    id: button

    required property ContentPresenter content
    required property RecentRepositories recent
    // Created when first opened.
    property RecentMenu menu: null
    readonly property bool isOpen: button.menu !== null && button.menu.visible
    // Since the pointer or the focus arrived; the tool tip is redundant then.
    property bool wasOpen: false

    function open() {
        if (!button.menu) {
            loader.setSource("RecentMenu.qml", { recent: button.recent, button: button });
            button.menu = loader.item as RecentMenu;
        }
        button.menu.width = Math.min(button.menu.implicitWidth, button.Window.width - 2 * AppTheme.smallSpace);
        button.recent.checkFolders();
        button.menu.open();
    }

    implicitWidth: AppTheme.controlHeight
    implicitHeight: AppTheme.controlHeight
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    enabled: button.content.canChoose
    opacity: enabled ? 1 : AppTheme.disabledOpacity
    Accessible.role: Accessible.ButtonMenu
    Accessible.name: qsTr("Scanned repositories")
    Keys.onReturnPressed: event => { if (!event.isAutoRepeat) button.clicked(); }
    Keys.onEnterPressed: event => { if (!event.isAutoRepeat) button.clicked(); }
    Keys.onDownPressed: button.clicked()
    onClicked: button.isOpen ? button.menu.close() : button.open()
    onIsOpenChanged: if (button.isOpen) button.wasOpen = true
    onActiveFocusChanged: if (!button.activeFocus && !button.isOpen) button.wasOpen = false
    onHoveredChanged: if (!button.isOpen) button.wasOpen = false

    contentItem: Item {
        Symbol {
            anchors.centerIn: parent
            name: "chevron.down"
            tint: AppTheme.text
        }
    }
    background: Rectangle {
        radius: AppTheme.controlRadius
        color: button.down || button.isOpen ? AppTheme.pressedFill
             : button.hovered ? AppTheme.hoverFill : "transparent"
    }

    FocusRing { shown: button.visualFocus }
    HoverTip {
        enabled: button.enabled
        cursorShape: Qt.PointingHandCursor
        words: qsTr("Choose a repository that was scanned before")
        wanted: button.enabled && !button.wasOpen && (button.hovered || button.visualFocus)
    }

    Loader { id: loader }
}
