import QtQuick
import Loadwick

// A title over a quieter detail, each on one line; a tool tip holds what had to be left out, and
// the place that tells the title apart from its equals.
Item {
    id: pair

    required property string title
    required property string detail
    property string place: ""
    readonly property bool cutShort: heading.truncated || note.truncated
    readonly property string both: pair.title + "\n" + pair.detail
    readonly property string whole: !pair.cutShort ? pair.place
        : pair.place.length > 0 ? pair.both + "\n" + pair.place : pair.both

    implicitWidth: Math.max(heading.implicitWidth, note.implicitWidth)
    implicitHeight: heading.implicitHeight + note.implicitHeight

    PlainLabel {
        id: heading

        objectName: "title"
        anchors { left: parent.left; right: parent.right; bottom: note.top }
        text: pair.title
        font: AppTheme.subheadlineStrongFont
        elide: Text.ElideRight
        maximumLineCount: 1
    }
    PlainLabel {
        id: note

        objectName: "detail"
        anchors { left: parent.left; right: parent.right }
        y: 0.5 * (pair.height - pair.implicitHeight) + heading.implicitHeight
        text: pair.detail
        font: AppTheme.captionFont
        secondary: true
        elide: Text.ElideRight
        maximumLineCount: 1
    }

    HoverTip { words: pair.whole }
}
