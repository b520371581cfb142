import QtQuick
import QtQuick.Layouts
import Loadwick

// The rows of the breakdown under their headings.
ColumnLayout {
    id: table

    required property BreakdownPresenter breakdown
    required property Flickable viewport
    // The row that the chart points at, -1 for none.
    required property int markedRow

    spacing: AppTheme.tightSpace

    BreakdownCells {
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
        id: list

        objectName: "rows"
        Layout.fillWidth: true
        model: table.breakdown.rows
        viewport: table.viewport
        rowHeight: headings.rowHeight
        markedIndex: table.markedRow
        Accessible.name: qsTr("Estimated breakdown by category")
        onCopyRequested: index => table.breakdown.copyRow(index)

        delegate: Item {
            id: row

            required property string name
            required property string tokens
            required property string share
            required property string source
            required property int colorPlace
            required property string sentence

            width: row.ListView.view.width
            height: cells.rowHeight
            Accessible.role: Accessible.ListItem
            Accessible.name: row.sentence
            // One that waits to be used again is not there.
            ListView.onPooled: row.visible = false
            ListView.onReused: row.visible = true

            BreakdownCells {
                id: cells

                anchors.fill: parent
                category: row.name
                tokens: row.tokens
                share: row.share
                source: row.source
                dot: AppTheme.chartColors[row.colorPlace % AppTheme.chartColors.length]
            }
        }
    }
}
