import QtQuick
import Loadwick

// One category of a card: its name and its tokens over its bar.
Item {
    id: row

    required property string category
    required property string value
    required property real length
    required property bool isRecorded
    required property string spoken
    readonly property TintedList bars: row.ListView.view ? row.ListView.view.parent as TintedList : null

    width: row.bars ? row.bars.width : 0
    height: row.bars ? row.bars.rowHeight : 0
    Accessible.role: Accessible.ListItem
    Accessible.name: row.spoken

    PlainLabel {
        id: name
        objectName: "category"
        anchors { left: parent.left; right: figure.left; rightMargin: AppTheme.smallSpace; baseline: figure.baseline }
        text: row.category
        font: AppTheme.captionFont
        secondary: !row.isRecorded
        elide: Text.ElideMiddle
        maximumLineCount: 1
        Accessible.ignored: true
    }
    PlainLabel {
        id: figure
        objectName: "value"
        anchors { right: parent.right; bottom: track.top; bottomMargin: 2 }
        text: row.value
        font: AppTheme.captionStrongFont
        secondary: !row.isRecorded
        Accessible.ignored: true
    }
    TokenBar {
        id: track
        objectName: "track"
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom; bottomMargin: AppTheme.tightSpace }
        length: row.length
        fill: row.bars ? row.bars.fill : "transparent"
    }

    HoverTip { words: name.truncated ? row.category : "" }
}
