import QtQuick
import Loadwick

// One category of a card: its name and its tokens over its bar.
BarRow {
    id: row

    required property string category
    required value
    required length
    required isRecorded
    required property string spoken
    readonly property BarList bars: row.ListView.view ? row.ListView.view.parent as BarList : null

    objectName: "bar"
    width: row.bars ? row.bars.width : 0
    height: row.bars ? row.bars.rowHeight : 0
    name: row.category
    style: row.bars ? row.bars.style : null
    fill: row.bars ? row.bars.fill : "transparent"
    Accessible.role: Accessible.ListItem
    Accessible.name: row.spoken
    // One that waits to be used again is not there.
    ListView.onPooled: row.visible = false
    ListView.onReused: row.visible = true
}
