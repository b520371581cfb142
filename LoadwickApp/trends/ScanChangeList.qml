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
        readonly property LongListRows rows: row.ListView.view as LongListRows

        width: row.rows ? row.rows.width : 0
        height: row.rows ? row.rows.rowHeight : 0
        // Qt 6.8 cannot compile a property that has the type of its own file.
        style: row.rows ? (row.rows.parent as ScanChangeList).style : null
        Accessible.role: Accessible.ListItem
        Accessible.name: row.sentence
        // Hidden while pooled.
        ListView.onPooled: row.visible = false
        ListView.onReused: { row.visible = true; row.Accessible.ignored = false; }
    }

    HoverTip {
        id: tip

        readonly property ChangeRow pointed: tip.hovered ? list.rowUnder(tip.point.position.y) as ChangeRow : null

        about: tip.pointed
        words: tip.pointed ? tip.pointed.tip : ""
    }
}
