import QtQuick
import Loadwick

// Plain text that can be read, selected and copied, but not changed. The tabulator reaches it, so
// that it can be copied without a mouse.
Item {
    id: control

    required property string text
    property bool secondary: false
    property font font: AppTheme.bodyFont
    property color color: secondary ? AppTheme.secondaryText : AppTheme.text
    property int horizontalAlignment: TextEdit.AlignLeft
    // 0: as many as it takes. What lies beyond the last line stays part of the text to be copied.
    property int maximumLineCount: 0
    readonly property real lineSpacing: edit.contentHeight / Math.max(1, edit.lineCount)
    // Not bound to the loader's item: Qt 6.4 turns that binding into C++ that does not compile.
    property TextMenu menu: null
    readonly property bool truncated: maximumLineCount > 0 && edit.lineCount > maximumLineCount
    // While it is read with the keyboard or selected, the text itself shows and not its short form.
    readonly property bool isCutShort: truncated && !edit.activeFocus && !loader.isOpen

    implicitWidth: edit.implicitWidth
    implicitHeight: truncated ? Math.ceil(lineSpacing * maximumLineCount)
                              : Math.ceil(edit.contentHeight)

    Item {
        anchors.fill: parent
        clip: control.truncated

        TextEdit {
            id: edit

            width: control.width
            text: control.text
            textFormat: TextEdit.PlainText
            readOnly: true
            selectByMouse: true
            persistentSelection: true
            activeFocusOnTab: true
            // A text cut short is broken anywhere: its last line is then full up to the dots.
            wrapMode: whole.fits ? TextEdit.Wrap : TextEdit.WrapAnywhere
            horizontalAlignment: control.horizontalAlignment
            font: control.font
            color: control.color
            // Not hidden, which would keep the pointer and the focus away.
            opacity: control.isCutShort ? 0 : 1
            selectionColor: AppTheme.accent
            selectedTextColor: AppTheme.accentText

            Accessible.role: Accessible.EditableText
            Accessible.readOnly: true
            Accessible.name: control.text

            onActiveFocusChanged: if (!edit.activeFocus && !loader.isOpen) edit.deselect()
            Keys.onMenuPressed: loader.openAt(edit.cursorRectangle.x, edit.cursorRectangle.height)

            HoverHandler { cursorShape: Qt.IBeamCursor }
            TapHandler {
                acceptedButtons: Qt.RightButton
                onTapped: point => { loader.openAt(point.position.x, point.position.y); }
            }
        }
    }

    PlainLabel {
        objectName: "short"
        anchors.fill: parent
        text: control.truncated ? control.text : ""
        font: control.font
        color: control.color
        // On one line the end tells names apart as well as the beginning.
        wrapMode: control.maximumLineCount === 1 ? Text.NoWrap : Text.WrapAnywhere
        elide: control.maximumLineCount === 1 ? Text.ElideMiddle : Text.ElideRight
        maximumLineCount: Math.max(1, control.maximumLineCount)
        visible: control.isCutShort
        Accessible.ignored: true
    }

    ShortcutPass { item: edit }

    // Made when it is first asked for: there are many texts.
    Loader {
        id: loader

        // From before the text loses the keyboard to it.
        property bool isOpen: false

        function openAt(x, y) {
            if (!control.menu) {
                loader.setSource("TextMenu.qml", { edit: edit });
                control.menu = loader.item as TextMenu;
            }
            loader.isOpen = true;
            edit.forceActiveFocus(Qt.PopupFocusReason);
            control.menu.popup(edit, x, y);
        }
    }
    Connections {
        target: control.menu
        function onClosed() { loader.isOpen = false; }
    }

    // The text as it would stand with its words, or the folders of a path, left whole.
    PlainLabel {
        id: whole

        readonly property bool fits: control.maximumLineCount === 0 || whole.lineCount <= control.maximumLineCount

        width: control.width
        text: control.maximumLineCount > 0 ? control.text : ""
        font: control.font
        wrapMode: Text.Wrap
        visible: false
        Accessible.ignored: true
    }

    FocusRing {
        shown: edit.activeFocus
        controlRadius: 2
    }
}
