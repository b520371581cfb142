import QtQuick
import Loadwick

// Plain text that can be read, selected and copied, but not changed. The tabulator reaches it, so
// that it can be copied without a mouse. There are many such texts, and what selects costs ten times
// what shows: it is made when the pointer or the keyboard comes.
Item {
    id: control

    required property string text
    property bool secondary: false
    property font font: AppTheme.bodyFont
    property color color: secondary ? AppTheme.secondaryText : AppTheme.text
    property int horizontalAlignment: Text.AlignLeft
    // 0: as many as it takes. What lies beyond the last line stays part of the text to be copied.
    property int maximumLineCount: 0
    // Else the keyboard comes by the arrows, from a text that is one: see KeyNavigation.
    property bool tabStop: true
    readonly property real lineSpacing: words.contentHeight / Math.max(1, words.lineCount)
    readonly property bool truncated: words.truncated
    // While it is read with the keyboard or selected, the text itself shows and not its short form.
    readonly property bool isRead: reader !== null && reader.isRead
    // The text as it would stand with its words, or the folders of a path, left whole: where that
    // is in question.
    property SilentText whole: null
    readonly property bool fits: whole !== null ? whole.lineCount <= maximumLineCount : maximumLineCount !== 1
    property TextReader reader: null

    function equip() {
        if (!control.reader)
            control.reader = control.make("TextReader.qml", {
                text: Qt.binding(() => control.text),
                font: Qt.binding(() => control.font),
                color: Qt.binding(() => control.color),
                horizontalAlignment: Qt.binding(() => control.horizontalAlignment),
                wrapMode: Qt.binding(() => control.fits ? TextEdit.Wrap : TextEdit.WrapAnywhere),
                isCut: Qt.binding(() => control.truncated),
                tabStop: Qt.binding(() => control.tabStop)
            }) as TextReader;
    }

    function make(part, properties) {
        return Qt.createComponent(part).createObject(control, properties);
    }

    implicitWidth: words.implicitWidth
    implicitHeight: Math.ceil(words.contentHeight)
    // Qt keeps it true for what has the focus.
    activeFocusOnTab: (control.tabStop && reader === null) || control.activeFocus
    Accessible.role: Accessible.EditableText
    Accessible.readOnly: true
    Accessible.focusable: true
    Accessible.name: control.text
    Accessible.ignored: reader !== null

    Component.onCompleted: {
        if (control.maximumLineCount > 1)
            control.whole = control.make("SilentText.qml", {
                text: Qt.binding(() => control.text),
                font: Qt.binding(() => control.font),
                width: Qt.binding(() => control.width),
                wrapMode: Text.Wrap,
                visible: false
            }) as SilentText;
    }
    onActiveFocusChanged: {
        if (control.activeFocus) {
            control.equip();
            control.reader.edit.forceActiveFocus();
        }
    }

    SilentText {
        id: words

        objectName: "shown"
        width: control.width
        text: control.text
        font: control.font
        color: control.color
        horizontalAlignment: control.horizontalAlignment
        // A text cut short is broken anywhere: its last line is then full up to the dots. On one line
        // the end tells names apart as well as the beginning.
        wrapMode: control.maximumLineCount === 1 ? Text.NoWrap : control.fits ? Text.Wrap : Text.WrapAnywhere
        elide: control.maximumLineCount === 0 ? Text.ElideNone
             : control.maximumLineCount === 1 ? Text.ElideMiddle : Text.ElideRight
        maximumLineCount: control.maximumLineCount > 0 ? control.maximumLineCount : 2147483647
        visible: !control.isRead
    }

    HoverHandler {
        cursorShape: Qt.IBeamCursor
        onHoveredChanged: control.equip()
    }
}
