import QtQuick
import Loadwick

// A line of the combined chart: a category's name, or a repository's bar within the category.
BarRow {
    id: row

    required property bool isCategory
    required property string title
    required place
    required property int column
    required value
    required length
    required isRecorded
    required property string spoken
    readonly property BarList bars: row.ListView.view ? row.ListView.view.parent as BarList : null

    objectName: row.isCategory ? "category" : "bar"
    width: row.bars ? row.bars.width : 0
    height: row.bars ? row.bars.rowHeight : 0
    arrangement: row.isCategory ? BarRow.Heading : BarRow.InLine
    name: row.title
    style: row.bars ? row.bars.style : null
    fill: AppTheme.chartColors[Math.max(0, row.column) % AppTheme.chartColors.length]
    Accessible.role: row.isCategory ? Accessible.Heading : Accessible.ListItem
    Accessible.name: row.spoken
    Accessible.description: row.place
    // One that waits to be used again is not there.
    ListView.onPooled: row.visible = false
    ListView.onReused: row.visible = true
}
