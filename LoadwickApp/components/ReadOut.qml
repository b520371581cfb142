import QtQuick
import Loadwick

// Describes the chart's current mark, beside the chart, where it covers nothing; without a current
// mark it shows a hint. It is as high as its longest text could be, so that nothing moves.
Item {
    id: readOut

    required property string hint
    // Empty while there is no current mark.
    required property string title
    required property string detail
    // A third, quieter text, which is cut if it takes too many lines.
    property string note: ""
    // A path that takes too many lines is elided in the middle, on one line.
    property bool isPath: false
    property int titleLines: 3
    property int detailLines: 1
    property int noteLines: 0
    // At the top, beside a tall neighbour; else centred.
    property bool atTop: false
    // The colour of the mark in the chart.
    property color swatch: "transparent"
    // The height of the words on the current mark.
    readonly property alias panelHeight: panel.height
    readonly property bool isEmpty: readOut.title.length === 0
    readonly property bool isCut: readOut.isPath && heading.truncated
    readonly property bool hasSwatch: readOut.swatch.a > 0
    // The indent of the words beside the swatch, and the remaining width.
    readonly property real indent: hasSwatch ? AppTheme.dotSize + AppTheme.smallSpace : 0
    readonly property real room: Math.max(0, width - indent - 2 * AppTheme.mediumSpace)
    // A label rounds both parts of a line up.
    readonly property real lineHeight: Math.ceil(metrics.ascent) + Math.ceil(metrics.descent)

    implicitWidth: 320
    implicitHeight: (titleLines + detailLines + noteLines) * lineHeight + 2 * AppTheme.smallSpace + AppTheme.tightSpace

    FontMetrics { id: metrics; font: AppTheme.bodyStrongFont }

    PlainLabel {
        objectName: "hint"
        anchors { left: parent.left; right: parent.right }
        y: readOut.atTop ? 0 : Math.round((readOut.height - height) / 2)
        leftPadding: AppTheme.smallSpace
        rightPadding: AppTheme.smallSpace
        topPadding: AppTheme.tightSpace
        bottomPadding: AppTheme.tightSpace
        text: readOut.hint
        font: AppTheme.captionFont
        secondary: true
        wrapMode: Text.Wrap
        visible: readOut.isEmpty
    }

    Rectangle {
        id: panel

        objectName: "panel"
        y: readOut.atTop ? 0 : Math.round((readOut.height - height) / 2)
        width: words.width + readOut.indent + 2 * AppTheme.mediumSpace
        height: words.height + 2 * AppTheme.smallSpace
        radius: AppTheme.controlRadius
        color: AppTheme.surface
        border { width: AppTheme.hairline; color: AppTheme.separator }
        visible: !readOut.isEmpty

        Rectangle {
            x: AppTheme.mediumSpace
            y: AppTheme.smallSpace + (readOut.lineHeight - height) / 2
            width: AppTheme.dotSize
            height: AppTheme.dotSize
            radius: AppTheme.dotSize / 2
            color: readOut.swatch
            visible: readOut.hasSwatch
        }
        // Not a layout: the heights of the words follow from their widths.
        Column {
            id: words

            x: AppTheme.mediumSpace + readOut.indent
            y: AppTheme.smallSpace
            spacing: 2

            PlainLabel {
                id: heading

                objectName: "title"
                width: Math.min(Math.ceil(implicitWidth), readOut.room)
                text: readOut.title
                font: readOut.isPath ? AppTheme.bodyFont : AppTheme.bodyStrongFont
                wrapMode: readOut.isPath ? Text.WrapAnywhere : Text.Wrap
                elide: readOut.isPath ? Text.ElideNone : Text.ElideRight
                maximumLineCount: readOut.titleLines
                visible: !readOut.isCut
            }
            PlainLabel {
                objectName: "shortPath"
                width: heading.width
                text: readOut.isPath ? readOut.title : ""
                elide: Text.ElideMiddle
                maximumLineCount: 1
                visible: readOut.isCut
            }
            PlainLabel {
                objectName: "detail"
                width: Math.min(Math.ceil(implicitWidth), readOut.room)
                text: readOut.detail
                font: readOut.isPath ? AppTheme.bodyStrongFont : AppTheme.bodyFont
                wrapMode: Text.Wrap
                maximumLineCount: readOut.detailLines
                elide: Text.ElideRight
            }
            PlainLabel {
                objectName: "note"
                width: Math.min(Math.ceil(implicitWidth), readOut.room)
                text: readOut.note
                font: AppTheme.captionFont
                secondary: true
                wrapMode: Text.Wrap
                maximumLineCount: Math.max(1, readOut.noteLines)
                elide: Text.ElideRight
                visible: readOut.note.length > 0
            }
        }
    }
}
