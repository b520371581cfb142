import QtQuick
import Loadwick

// Lets a text be selected and copied in place. Visible while it has the focus or its menu is open.
Item {
    id: reader

    required property string text
    required property font font
    required property color color
    required property int horizontalAlignment
    required property int wrapMode
    // Only the first lines fit.
    required property bool isCut
    required property bool tabStop
    readonly property TextEdit edit: words
    readonly property bool isRead: words.activeFocus || reader.isMenuOpen
    // Created when first opened.
    property PlainMenu menu: null
    // Set before the text loses the focus to the menu.
    property bool isMenuOpen: false

    function openMenu(x, y) {
        if (!reader.menu)
            reader.menu = maker.createObject(reader, { edit: words }) as PlainMenu;
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
        // From an item that is not a tab stop, Qt would return to the window's first stop.
        activeFocusOnTab: reader.tabStop || words.activeFocus
        wrapMode: reader.wrapMode
        horizontalAlignment: reader.horizontalAlignment
        font: reader.font
        color: reader.color
        // An invisible item takes neither the pointer nor the focus.
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
    Component {
        id: maker

        PlainMenu {
            id: textMenu

            required property TextEdit edit

            implicitWidth: 160

            PlainMenuItem {
                title: qsTr("Copy")
                detail: ""
                onTriggered: {
                    // Without a selection it applies to the whole text.
                    if (textMenu.edit.selectedText.length === 0)
                        textMenu.edit.selectAll();
                    textMenu.edit.copy();
                }
            }
        }
    }
    Connections {
        target: reader.menu
        function onClosed() { reader.isMenuOpen = false; }
    }
    FocusRing {
        shown: words.activeFocus
        controlRadius: 2
    }
}
