import QtQuick
import QtQuick.Layouts
import Loadwick

// One line of the breakdown, its headings as well as its rows, so that the columns agree.
RowLayout {
    id: cells

    required property string category
    required property string tokens
    required property string share
    required property string source
    property color dot: "transparent"
    property bool heading: false
    // Too little room for a source on one line.
    readonly property bool narrow: cells.width < 760
    readonly property real rowHeight: cells.narrow ? 44 : 32
    readonly property font wordFont: cells.heading ? AppTheme.captionStrongFont : AppTheme.bodyFont

    spacing: AppTheme.cardSpace

    Rectangle {
        Layout.rightMargin: AppTheme.smallSpace - cells.spacing
        implicitWidth: AppTheme.dotSize
        implicitHeight: AppTheme.dotSize
        radius: AppTheme.dotSize / 2
        color: cells.dot
    }
    PlainLabel {
        id: name

        objectName: "name"
        Layout.fillWidth: true
        text: cells.category
        font: cells.wordFont
        secondary: cells.heading
        wrapMode: Text.Wrap
        maximumLineCount: cells.narrow ? 2 : 1
        elide: Text.ElideRight

        HoverTip { words: name.truncated ? name.text : "" }
    }
    PlainLabel {
        objectName: "tokens"
        // A figure of any length pushes the name aside.
        Layout.preferredWidth: Math.max(88, implicitWidth)
        horizontalAlignment: Text.AlignRight
        text: cells.tokens
        font: cells.wordFont
        secondary: cells.heading
    }
    PlainLabel {
        objectName: "share"
        Layout.preferredWidth: 56
        horizontalAlignment: Text.AlignRight
        text: cells.share
        font: cells.wordFont
        secondary: cells.heading
    }
    PlainLabel {
        objectName: "source"
        Layout.preferredWidth: cells.narrow ? 168 : 288
        Layout.leftMargin: AppTheme.smallSpace
        text: cells.source
        font: cells.heading ? AppTheme.captionStrongFont : AppTheme.captionFont
        secondary: true
        wrapMode: Text.Wrap
    }
}
