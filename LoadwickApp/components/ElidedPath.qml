import QtQuick
import Loadwick

// A path on one line, elided in the middle if it is too long. The tool tip shows the whole path; so
// does the line itself, selected and ready to be copied, once it is pressed or focused.
Item {
    id: control

    required property string text
    property bool secondary: false
    property font font: AppTheme.bodyFont
    property color color: secondary ? AppTheme.secondaryText : AppTheme.text
    // False in a list, which is a single tab stop.
    property bool tabStop: true
    // Its folders read from left to right, whatever their script, on one line; for display only.
    readonly property string shownText: "\u200E" + control.text.replace(/[\n\r\u2028\u2029]/g, " ").split("/").join("/\u200E")
    readonly property alias truncated: label.truncated
    readonly property alias selecting: edit.activeFocus
    readonly property alias selectedText: edit.selectedText

    implicitWidth: label.implicitWidth
    implicitHeight: label.implicitHeight
    baselineOffset: label.baselineOffset

    PlainLabel {
        id: label

        anchors.fill: parent
        text: control.shownText
        font: control.font
        color: control.color
        elide: Text.ElideMiddle
        maximumLineCount: 1
        verticalAlignment: Text.AlignVCenter
        visible: !edit.activeFocus
        Accessible.ignored: true
    }

    TextInput {
        id: edit

        anchors.fill: parent
        text: control.text
        font: control.font
        color: control.color
        readOnly: true
        selectByMouse: true
        clip: true
        verticalAlignment: TextInput.AlignVCenter
        activeFocusOnTab: control.tabStop
        selectionColor: AppTheme.accent
        selectedTextColor: AppTheme.accentText
        // An invisible item cannot take the focus.
        opacity: edit.activeFocus ? 1 : 0

        Accessible.role: Accessible.EditableText
        Accessible.readOnly: true
        Accessible.name: control.text

        onActiveFocusChanged: {
            if (edit.activeFocus)
                edit.selectAll();
            else
                edit.deselect();
        }
    }

    // The first press selects everything; later presses select parts.
    MouseArea {
        anchors.fill: parent
        enabled: !edit.activeFocus
        cursorShape: Qt.IBeamCursor
        Accessible.ignored: true
        onClicked: edit.forceActiveFocus(Qt.MouseFocusReason)
    }

    HoverTip {
        objectName: "tip"
        words: label.truncated ? control.shownText : ""
    }
    FocusRing {
        shown: edit.activeFocus
        controlRadius: 2
    }
}
