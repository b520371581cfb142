import QtQuick
import Loadwick

// A line of the combined chart: a category's name, or a repository's bar within the category.
Item {
    id: row

    required property bool isCategory
    required property string title
    required property string place
    required property int column
    required property string value
    required property real length
    required property bool isRecorded
    required property string spoken
    readonly property CombinedList bars: row.ListView.view ? row.ListView.view.parent as CombinedList : null

    width: row.bars ? row.bars.width : 0
    height: row.bars ? row.bars.rowHeight : 0
    Accessible.role: row.isCategory ? Accessible.Heading : Accessible.ListItem
    Accessible.name: row.spoken
    Accessible.description: row.place

    PlainLabel {
        objectName: "category"
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom; bottomMargin: 2 }
        text: row.title
        font: AppTheme.bodyStrongFont
        elide: Text.ElideMiddle
        maximumLineCount: 1
        visible: row.isCategory
        Accessible.ignored: true
    }
    PlainLabel {
        id: name
        objectName: "name"
        anchors { left: parent.left; verticalCenter: parent.verticalCenter }
        width: row.bars ? row.bars.nameWidth : 0
        text: row.title
        font: AppTheme.captionFont
        secondary: true
        elide: Text.ElideMiddle
        maximumLineCount: 1
        visible: !row.isCategory
        Accessible.ignored: true
    }
    TokenBar {
        objectName: "track"
        anchors {
            left: name.right; right: figure.left; verticalCenter: parent.verticalCenter
            leftMargin: AppTheme.mediumSpace; rightMargin: AppTheme.mediumSpace
        }
        length: row.length
        fill: AppTheme.chartColors[Math.max(0, row.column) % AppTheme.chartColors.length]
        visible: !row.isCategory
    }
    PlainLabel {
        id: figure
        objectName: "value"
        anchors { right: parent.right; verticalCenter: parent.verticalCenter }
        width: row.bars ? row.bars.valueWidth : 0
        text: row.value
        font: AppTheme.captionStrongFont
        secondary: !row.isRecorded
        horizontalAlignment: Text.AlignRight
        visible: !row.isCategory
        Accessible.ignored: true
    }

    HoverTip { words: row.isCategory ? row.title : row.title + "\n" + row.place }
}
