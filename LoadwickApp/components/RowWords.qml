import QtQuick
import QtQuick.Layouts
import Loadwick

// A title over a quieter detail, each on one line; a tool tip holds what had to be left out, and
// the place that tells the title apart from its equals.
ColumnLayout {
    id: words

    required property string title
    required property string detail
    property string place: ""
    readonly property bool cutShort: heading.truncated || note.truncated
    readonly property string both: words.title + "\n" + words.detail
    readonly property string whole: !words.cutShort ? words.place
        : words.place.length > 0 ? words.both + "\n" + words.place : words.both

    spacing: 0

    PlainLabel {
        id: heading
        objectName: "title"
        Layout.fillWidth: true
        text: words.title
        font: AppTheme.subheadlineStrongFont
        elide: Text.ElideRight
        maximumLineCount: 1
    }
    PlainLabel {
        id: note
        objectName: "detail"
        Layout.fillWidth: true
        text: words.detail
        font: AppTheme.captionFont
        secondary: true
        elide: Text.ElideRight
        maximumLineCount: 1
    }

    HoverHandler { id: pointer }
    PlainToolTip {
        words: words.whole
        visible: pointer.hovered && words.whole.length > 0
    }
}
