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

    // One line of the table, headings or row, so that both share one set of columns.
    component Cells: RowLayout {
        id: cells

        required property string category
        required property string tokens
        required property string share
        required property string source
        property color dot: "transparent"
        property bool heading: false
        // Too narrow for a source on one line.
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
        rowHeight: headings.rowHeight
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
            height: cells.rowHeight
            Accessible.role: Accessible.ListItem
            Accessible.name: row.sentence
            // Hidden while pooled.
            ListView.onPooled: row.visible = false
            ListView.onReused: row.visible = true

            Cells {
                id: cells

                anchors.fill: parent
                category: row.name
                tokens: row.tokens
                share: row.share
                source: row.source
                dot: AppTheme.chartColors[row.index % AppTheme.chartColors.length]
            }
        }
    }
}
