import QtQuick
import QtQuick.Layouts
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
    RowLayout {
        anchors { left: parent.left; right: parent.right; verticalCenter: parent.verticalCenter }
        spacing: AppTheme.mediumSpace
        visible: !row.isCategory

        PlainLabel {
            objectName: "name"
            Layout.preferredWidth: row.bars ? row.bars.nameWidth : 0
            text: row.title
            font: AppTheme.captionFont
            secondary: true
            elide: Text.ElideMiddle
            maximumLineCount: 1
            Accessible.ignored: true
        }
        TokenBar {
            objectName: "track"
            Layout.fillWidth: true
            length: row.length
            fill: AppTheme.chartColors[Math.max(0, row.column) % AppTheme.chartColors.length]
        }
        PlainLabel {
            objectName: "value"
            Layout.preferredWidth: row.bars ? row.bars.valueWidth : 0
            text: row.value
            font: AppTheme.captionStrongFont
            secondary: !row.isRecorded
            horizontalAlignment: Text.AlignRight
            Accessible.ignored: true
        }
    }

    HoverTip { words: row.isCategory ? row.title : row.title + "\n" + row.place }
}
