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
    // The ground it stands on, for the dots that end a text cut short.
    property color ground: AppTheme.surface
    readonly property real lineSpacing: edit.contentHeight / Math.max(1, edit.lineCount)
    readonly property bool truncated: maximumLineCount > 0 && edit.lineCount > maximumLineCount

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
            activeFocusOnTab: true
            // A text cut short is broken anywhere: its last line is then full up to the dots.
            wrapMode: whole.fits ? TextEdit.Wrap : TextEdit.WrapAnywhere
            horizontalAlignment: control.horizontalAlignment
            font: control.font
            color: control.color
            selectionColor: AppTheme.accent
            selectedTextColor: AppTheme.accentText

            Accessible.role: Accessible.EditableText
            Accessible.readOnly: true
            Accessible.name: control.text

            onActiveFocusChanged: if (!edit.activeFocus) edit.deselect()

            HoverHandler { cursorShape: Qt.IBeamCursor }
        }

        Rectangle {
            anchors { right: parent.right; bottom: parent.bottom }
            width: dots.width + AppTheme.tightSpace
            height: dots.height
            color: control.ground
            visible: control.truncated && !edit.activeFocus

            PlainLabel {
                id: dots
                anchors.right: parent.right
                text: "…"
                font: control.font
                color: control.color
                Accessible.ignored: true
            }
        }
    }

    ShortcutPass { item: edit }

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
