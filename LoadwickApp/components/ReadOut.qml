import QtQuick
import QtQuick.Layouts
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
    // The colour of the mark in the chart.
    property color swatch: "transparent"

    implicitWidth: 320
    implicitHeight: 3 * metrics.height + caption.height + 2 * AppTheme.smallSpace + AppTheme.tightSpace

    FontMetrics { id: metrics; font: AppTheme.bodyStrongFont }
    FontMetrics { id: caption; font: AppTheme.bodyFont }

    PlainLabel {
        objectName: "hint"
        anchors { left: parent.left; right: parent.right; verticalCenter: parent.verticalCenter }
        leftPadding: AppTheme.smallSpace
        rightPadding: AppTheme.smallSpace
        topPadding: AppTheme.tightSpace
        bottomPadding: AppTheme.tightSpace
        text: readOut.hint
        font: AppTheme.captionFont
        secondary: true
        wrapMode: Text.Wrap
        visible: readOut.title.length === 0
    }

    Rectangle {
        objectName: "panel"
        anchors { left: parent.left; verticalCenter: parent.verticalCenter }
        width: Math.min(parent.width, words.implicitWidth + 2 * AppTheme.mediumSpace)
        height: words.implicitHeight + 2 * AppTheme.smallSpace
        radius: AppTheme.controlRadius
        color: AppTheme.surface
        border { width: AppTheme.hairline; color: AppTheme.separator }
        visible: readOut.title.length > 0

        GridLayout {
            id: words

            anchors {
                left: parent.left; right: parent.right; verticalCenter: parent.verticalCenter
                leftMargin: AppTheme.mediumSpace; rightMargin: AppTheme.mediumSpace
            }
            columns: 2
            columnSpacing: AppTheme.smallSpace
            rowSpacing: 2

            Rectangle {
                Layout.alignment: Qt.AlignTop
                Layout.topMargin: (metrics.height - height) / 2
                implicitWidth: AppTheme.dotSize
                implicitHeight: AppTheme.dotSize
                radius: AppTheme.dotSize / 2
                color: readOut.swatch
                visible: readOut.swatch.a > 0
            }
            PlainLabel {
                objectName: "title"
                Layout.fillWidth: true
                text: readOut.title
                font: AppTheme.bodyStrongFont
                wrapMode: Text.Wrap
                elide: Text.ElideRight
                maximumLineCount: 3
            }
            PlainLabel {
                objectName: "detail"
                Layout.fillWidth: true
                Layout.column: readOut.swatch.a > 0 ? 1 : 0
                Layout.row: 1
                Layout.columnSpan: readOut.swatch.a > 0 ? 1 : 2
                text: readOut.detail
                elide: Text.ElideRight
            }
        }
    }
}
