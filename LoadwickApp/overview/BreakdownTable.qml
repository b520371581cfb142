import QtQuick
import QtQuick.Layouts
import Loadwick

// The rows of the breakdown under their headings.
ColumnLayout {
    id: table

    required property BreakdownPresenter breakdown
    required property Flickable viewport
    // The row that the chart highlights, -1 for none.
    required property int markedRow

    // One row of the table, headings included, so that all share one set of columns. Anchors,
    // because a layout keeps the old columns if its width changes while it is laid out.
    component Cells: Item {
        id: cells

        required property string category
        required property string tokens
        required property string share
        required property string source
        property color dot: "transparent"
        property bool heading: false
        // Too narrow for a source on the same line: it is below the name.
        readonly property bool narrow: cells.width < AppTheme.scaled(760)
        readonly property real sourceWidth: cells.narrow ? 0 : AppTheme.scaled(288) + AppTheme.pageMargin
        readonly property font wordFont: cells.heading ? AppTheme.captionStrongFont : AppTheme.bodyFont
        // From right to left too, figures end in one column, which then needs one width.
        readonly property int figureAlignment: cells.LayoutMirroring.enabled ? Text.AlignLeft : Text.AlignRight

        implicitHeight: AppTheme.scaled(cells.narrow ? 48 : 32)

        Rectangle {
            id: mark

            anchors { left: parent.left; verticalCenter: name.verticalCenter }
            width: AppTheme.dotSize
            height: AppTheme.dotSize
            radius: AppTheme.dotSize / 2
            color: cells.dot
        }
        PlainLabel {
            id: name

            objectName: "name"
            anchors { left: mark.right; leftMargin: AppTheme.smallSpace; right: amount.left; rightMargin: AppTheme.cardSpace }
            y: Math.round((cells.height - height - (cells.narrow ? origin.height : 0)) / 2)
            text: cells.category
            font: cells.wordFont
            secondary: cells.heading
            elide: Text.ElideRight
            maximumLineCount: 1

            HoverTip { words: name.truncated ? name.text : "" }
        }
        PlainLabel {
            id: amount

            objectName: "tokens"
            anchors { right: portion.left; rightMargin: AppTheme.cardSpace; baseline: name.baseline }
            // A long figure pushes the name aside, but shrinks before the name would vanish.
            width: Math.min(0.4 * cells.width, Math.max(cells.LayoutMirroring.enabled ? AppTheme.scaled(88) : 0, Math.ceil(implicitWidth)))
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: 10
            horizontalAlignment: cells.figureAlignment
            text: cells.tokens
            font: cells.wordFont
            secondary: cells.heading
        }
        PlainLabel {
            id: portion

            objectName: "share"
            anchors { right: parent.right; rightMargin: cells.sourceWidth; baseline: name.baseline }
            width: AppTheme.scaled(56)
            horizontalAlignment: cells.figureAlignment
            text: cells.share
            font: cells.wordFont
            secondary: cells.heading
        }
        PlainLabel {
            id: origin

            objectName: "source"
            anchors { left: cells.narrow ? name.left : portion.right; leftMargin: cells.narrow ? 0 : AppTheme.pageMargin; right: parent.right }
            y: cells.narrow ? name.y + name.height : Math.round(name.y + name.baselineOffset - baselineOffset)
            text: cells.source
            font: cells.heading ? AppTheme.captionStrongFont : AppTheme.captionFont
            secondary: true
        }
    }

    spacing: AppTheme.tightSpace

    Cells {
        id: headings

        Layout.fillWidth: true
        category: qsTr("Category")
        tokens: qsTr("Tokens")
        share: qsTr("Share")
        source: qsTr("Source")
        heading: true
    }
    Hairline { Layout.fillWidth: true }
    LongList {
        objectName: "rows"
        Layout.fillWidth: true
        model: table.breakdown.rows
        viewport: table.viewport
        rowHeight: headings.implicitHeight
        markedIndex: table.markedRow
        Accessible.name: qsTr("Estimated breakdown by category")
        onCopyRequested: index => table.breakdown.rows.copy(index, "sentence")

        delegate: Item {
            id: row

            required property string name
            required property string tokens
            required property string share
            required property string source
            required property int index
            required property string sentence

            width: row.ListView.view.width
            height: cells.implicitHeight
            Accessible.role: Accessible.ListItem
            Accessible.name: row.sentence
            // Hidden while pooled.
            ListView.onPooled: row.visible = false
            ListView.onReused: { row.visible = true; row.Accessible.ignored = false; }

            Cells {
                id: cells

                anchors.fill: parent
                category: row.name
                tokens: row.tokens
                share: row.share
                source: row.source
                // A pooled row has no index.
                dot: AppTheme.chartColors[Math.max(0, row.index) % AppTheme.chartColors.length]
            }
        }
    }
}
