import QtQuick
import Loadwick

// Lets a text be selected and copied where it stands. It is seen while it is read: while it has the
// keyboard or its menu is open.
Item {
    id: reader

    required property string text
    required property font font
    required property color color
    required property int horizontalAlignment
    required property int wrapMode
    // Only its first lines have a place.
    required property bool isCut
    required property bool tabStop
    readonly property TextEdit edit: words
    readonly property bool isRead: words.activeFocus || reader.isMenuOpen
    // Not bound to the loader's item: Qt 6.4 turns that binding into C++ that does not compile.
    property TextMenu menu: null
    // From before the text loses the keyboard to it.
    property bool isMenuOpen: false

    function openMenu(x, y) {
        if (!reader.menu) {
            loader.setSource("TextMenu.qml", { edit: words });
            reader.menu = loader.item as TextMenu;
        }
        reader.isMenuOpen = true;
        words.forceActiveFocus(Qt.PopupFocusReason);
        reader.menu.popup(words, x, y);
    }

    anchors.fill: parent

    TextEdit {
        id: words

        objectName: "edit"
        anchors.fill: parent
        clip: reader.isCut
        text: reader.text
        textFormat: TextEdit.PlainText
        readOnly: true
        selectByMouse: true
        persistentSelection: true
        // From what is no stop, Qt would go back to the first one of all.
        activeFocusOnTab: reader.tabStop || words.activeFocus
        wrapMode: reader.wrapMode
        horizontalAlignment: reader.horizontalAlignment
        font: reader.font
        color: reader.color
        // Not hidden, which would keep the pointer and the focus away.
        opacity: reader.isRead ? 1 : 0
        selectionColor: AppTheme.accent
        selectedTextColor: AppTheme.accentText

        Accessible.role: Accessible.EditableText
        Accessible.readOnly: true
        Accessible.focusable: true
        Accessible.name: reader.text

        onActiveFocusChanged: if (!words.activeFocus && !reader.isMenuOpen) words.deselect()
        Keys.onMenuPressed: reader.openMenu(words.cursorRectangle.x, words.cursorRectangle.height)

        TapHandler {
            acceptedButtons: Qt.RightButton
            onTapped: point => { reader.openMenu(point.position.x, point.position.y); }
        }
    }

    ShortcutPass { item: words }
    Loader { id: loader }
    Connections {
        target: reader.menu
        function onClosed() { reader.isMenuOpen = false; }
    }
    FocusRing {
        shown: words.activeFocus
        controlRadius: 2
    }
}
