import QtQuick
import Loadwick

// Plain text that can be selected and copied, but not changed. It is a tab stop, so that it can be
// copied without a mouse. There are many such texts, and the part that selects costs ten times the
// part that shows: it is created when the pointer or the focus arrives.
Item {
    id: control

    required property string text
    property bool secondary: false
    property font font: AppTheme.bodyFont
    property color color: secondary ? AppTheme.secondaryText : AppTheme.text
    property int horizontalAlignment: Text.AlignLeft
    // 0: no limit. Text beyond the last line is still copied.
    property int maximumLineCount: 0
    // False if arrow keys lead here from a text that is a tab stop: see KeyNavigation.
    property bool tabStop: true
    readonly property real lineSpacing: words.contentHeight / Math.max(1, words.lineCount)
    readonly property bool truncated: words.truncated || words.text !== control.text
    // While the text is focused or selected, it is shown in full.
    readonly property bool isRead: reader !== null && reader.isRead
    // The text laid out without breaking words, or folders of a path; created only if the number of
    // lines is limited.
    property Text whole: null
    // What of it fits into these lines if they break anywhere; each may lack one letter.
    property TextMetrics part: null
    readonly property bool fits: whole !== null ? whole.lineCount <= maximumLineCount : maximumLineCount !== 1
    property TextReader reader: null

    function equip() {
        if (!control.reader)
            control.reader = Qt.createComponent("TextReader.qml").createObject(control, {
                text: Qt.binding(() => control.text),
                font: Qt.binding(() => control.font),
                color: Qt.binding(() => control.color),
                horizontalAlignment: Qt.binding(() => control.horizontalAlignment),
                wrapMode: Qt.binding(() => control.fits ? TextEdit.Wrap : TextEdit.WrapAnywhere),
                isCut: Qt.binding(() => control.truncated),
                tabStop: Qt.binding(() => control.tabStop)
            }) as TextReader;
    }

    // Looks like a PlainLabel; the control itself is named for assistive technology.
    component Words: Text {
        textFormat: Text.PlainText
        horizontalAlignment: Text.AlignLeft
        linkColor: color
    }

    implicitWidth: words.implicitWidth
    implicitHeight: Math.ceil(words.contentHeight)
    // Qt keeps it true while focused.
    activeFocusOnTab: (control.tabStop && reader === null) || control.activeFocus
    Accessible.role: Accessible.EditableText
    Accessible.readOnly: true
    Accessible.focusable: true
    Accessible.name: control.text
    Accessible.ignored: reader !== null

    Component.onCompleted: {
        if (control.maximumLineCount <= 1)
            return;
        control.whole = wholeMaker.createObject(control, {
            text: Qt.binding(() => control.text),
            font: Qt.binding(() => control.font),
            width: Qt.binding(() => control.width)
        }) as Text;
        control.part = partMaker.createObject(control, {
            text: Qt.binding(() => control.text),
            font: Qt.binding(() => control.font),
            elideWidth: Qt.binding(() => control.maximumLineCount * (control.width - control.font.pixelSize))
        }) as TextMetrics;
    }
    onActiveFocusChanged: {
        if (control.activeFocus) {
            control.equip();
            control.reader.edit.forceActiveFocus();
        }
    }

    Component {
        id: wholeMaker

        Words {
            wrapMode: Text.Wrap
            visible: false
        }
    }

    Component {
        id: partMaker

        TextMetrics { elide: Text.ElideMiddle }
    }

    Words {
        id: words

        objectName: "shown"
        width: control.width
        // Elided in the middle: the end tells names and paths apart as well as the beginning.
        text: control.part && !control.fits ? control.part.elidedText : control.text
        font: control.font
        color: control.color
        horizontalAlignment: control.horizontalAlignment
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
