import QtQuick
import QtQuick.Layouts
import Loadwick

// One line of a list of scans or repositories: rank, title, figure, and an optional child. Words
// that are too long are elided, figures never are.
Item {
    id: row

    // From 1; 0 in a list without ranks.
    property int rank: 0
    required property string title
    required property string detail
    required property string value
    property color valueTint: AppTheme.text
    property string valueCaption: ""
    // The repository's path, if another one has the same title; else empty.
    property string path: ""
    // All words of the row, for a screen reader.
    property string sentence: title
    // The minimum width of the child, so that the figures of all rows are aligned.
    property real accessoryWidth: 0
    default property alias accessory: slot.data

    implicitWidth: line.implicitWidth
    implicitHeight: line.implicitHeight + 2 * AppTheme.tightSpace
    Accessible.role: Accessible.ListItem
    Accessible.name: row.sentence
    Accessible.description: row.path
    // Hidden while pooled.
    ListView.onPooled: row.visible = false
    ListView.onReused: { row.visible = true; row.Accessible.ignored = false; }

    RowLayout {
        id: line

        anchors { left: parent.left; right: parent.right; verticalCenter: parent.verticalCenter }
        spacing: AppTheme.cardSpace

        PlainLabel {
            objectName: "rank"
            Layout.preferredWidth: Math.max(implicitWidth, Math.ceil(threeFigures.advanceWidth))
            text: row.rank > 0 ? String(row.rank) : ""
            font: AppTheme.subheadlineStrongFont
            secondary: true
            horizontalAlignment: Text.AlignRight
            visible: row.rank > 0
        }
        // One line each; the tool tip holds the elided words and the path.
        Item {
            id: words

            readonly property bool cutShort: heading.truncated || note.truncated
            readonly property string both: row.title + "\n" + row.detail
            readonly property string whole: !words.cutShort ? row.path
                : row.path.length > 0 ? words.both + "\n" + row.path : words.both

            objectName: "words"
            Layout.fillWidth: true
            implicitWidth: Math.max(heading.implicitWidth, note.implicitWidth)
            implicitHeight: heading.implicitHeight + note.implicitHeight

            PlainLabel {
                id: heading

                objectName: "title"
                anchors { left: parent.left; right: parent.right; bottom: note.top }
                text: row.title
                font: AppTheme.subheadlineStrongFont
                elide: Text.ElideRight
                maximumLineCount: 1
            }
            PlainLabel {
                id: note

                objectName: "detail"
                anchors { left: parent.left; right: parent.right }
                y: 0.5 * (words.height - words.implicitHeight) + heading.implicitHeight
                text: row.detail
                font: AppTheme.captionFont
                secondary: true
                elide: Text.ElideRight
                maximumLineCount: 1
            }
            HoverTip { words: words.whole }
        }
        Item {
            objectName: "figure"
            Layout.fillWidth: false
            implicitWidth: Math.max(number.implicitWidth, caption.visible ? caption.implicitWidth : 0)
            implicitHeight: number.implicitHeight + (caption.visible ? caption.implicitHeight : 0)

            PlainLabel {
                id: number

                objectName: "value"
                anchors.right: parent.right
                text: row.value
                font: AppTheme.subheadlineStrongFont
                color: row.valueTint
            }
            PlainLabel {
                id: caption

                objectName: "caption"
                anchors { right: parent.right; top: number.bottom }
                text: row.valueCaption
                font: AppTheme.captionFont
                secondary: true
                visible: row.valueCaption.length > 0
            }
        }
        RowLayout {
            id: slot

            objectName: "accessory"
            Layout.fillWidth: false
            Layout.preferredWidth: Math.max(row.accessoryWidth, implicitWidth)
            spacing: 0
            visible: children.length > 1

            Item { Layout.fillWidth: true }
        }
    }

    TextMetrics {
        id: threeFigures
        font: AppTheme.subheadlineStrongFont
        text: "000"
    }
}
