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
    readonly property bool narrow: cells.width < AppTheme.scaled(760)
    readonly property real rowHeight: AppTheme.scaled(cells.narrow ? 44 : 32)
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
        Layout.preferredWidth: Math.max(AppTheme.scaled(88), implicitWidth)
        horizontalAlignment: Text.AlignRight
        LayoutMirroring.enabled: false
        text: cells.tokens
        font: cells.wordFont
        secondary: cells.heading
    }
    PlainLabel {
        objectName: "share"
        Layout.preferredWidth: AppTheme.scaled(56)
        horizontalAlignment: Text.AlignRight
        LayoutMirroring.enabled: false
        text: cells.share
        font: cells.wordFont
        secondary: cells.heading
    }
    PlainLabel {
        objectName: "source"
        Layout.preferredWidth: cells.narrow ? Math.min(AppTheme.scaled(168), 200) : AppTheme.scaled(288)
        Layout.leftMargin: AppTheme.smallSpace
        text: cells.source
        font: cells.heading ? AppTheme.captionStrongFont : AppTheme.captionFont
        secondary: true
        wrapMode: Text.Wrap
    }
}
