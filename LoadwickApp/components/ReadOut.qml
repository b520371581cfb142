import QtQuick
import Loadwick

// What is said of the mark that a chart points at, in a place of its own beside the chart, where it
// covers nothing; a hint stands there while there is no such mark. It is as high as its longest
// words could be, so that nothing moves.
Item {
    id: readOut

    required property string hint
    // Empty while no mark is pointed at.
    required property string title
    required property string detail
    // Of a path that takes too many lines the middle is left out, not the end.
    property bool isPath: false
    property int titleLines: 3
    property int detailLines: 1
    // Beside something high it stands at the top, else in the middle.
    property bool atTop: false
    // The colour of the mark in the chart.
    property color swatch: "transparent"
    readonly property bool isEmpty: readOut.title.length === 0
    readonly property bool hasSwatch: readOut.swatch.a > 0
    // Of the words beside the swatch, and the width that is left to them.
    readonly property real indent: hasSwatch ? AppTheme.dotSize + AppTheme.smallSpace : 0
    readonly property real room: Math.max(0, width - indent - 2 * AppTheme.mediumSpace)
    // A label rounds both parts of a line up.
    readonly property real lineHeight: Math.ceil(metrics.ascent) + Math.ceil(metrics.descent)

    implicitWidth: 320
    implicitHeight: (titleLines + detailLines) * lineHeight + 2 * AppTheme.smallSpace + AppTheme.tightSpace

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

            ReadOutTitle {
                width: Math.min(implicitWidth, readOut.room)
                text: readOut.title
                isPath: readOut.isPath
                mostLines: readOut.titleLines
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
        }
    }
}
