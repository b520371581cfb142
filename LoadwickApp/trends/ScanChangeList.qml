import QtQuick
import Loadwick

// The rows of what changed. A tool tip completes the row under the pointer if its name is elided.
LongList {
    id: list

    required property ChangeStyle style

    delegate: ChangeRow {
        id: row

        required name
        required note
        required before
        required after
        required difference
        required kind
        required length
        required isTotal
        required property string sentence
        readonly property ScanChangeList list: row.ListView.view ? row.ListView.view.parent as ScanChangeList : null

        width: row.list ? row.list.width : 0
        height: row.list ? row.list.rowHeight : 0
        style: row.list ? row.list.style : null
        Accessible.role: Accessible.ListItem
        Accessible.name: row.sentence
        // Hidden while pooled.
        ListView.onPooled: row.visible = false
        ListView.onReused: row.visible = true
    }

    HoverTip {
        id: tip

        readonly property ChangeRow pointed: tip.hovered ? list.rowUnder(tip.point.position.y) as ChangeRow : null

        about: tip.pointed
        words: tip.pointed ? tip.pointed.tip : ""
    }
}
