import QtQuick
import QtQuick.Layouts
import Loadwick

// One line of a list of scans or repositories: its rank, what it is, its figure, and beside that
// whatever it is given as a child. Words that are too long are cut short, figures never are.
Item {
    id: row

    // From 1; 0 for a list without ranks.
    property int rank: 0
    required property string title
    required property string detail
    required property string value
    property color valueTint: AppTheme.text
    property string valueCaption: ""
    // What tells two rows of one title apart, where something does.
    property string place: ""
    // The least room kept for the child, so that the figures of all rows end on one line.
    property real accessoryWidth: 0
    default property alias accessory: slot.data

    implicitWidth: line.implicitWidth
    implicitHeight: line.implicitHeight + 2 * AppTheme.tightSpace
    Accessible.role: Accessible.ListItem
    Accessible.name: row.title
    Accessible.description: row.place
    // One that waits to be used again is not there.
    ListView.onPooled: row.visible = false
    ListView.onReused: row.visible = true

    RowLayout {
        id: line

        anchors { left: parent.left; right: parent.right; verticalCenter: parent.verticalCenter }
        spacing: AppTheme.cardSpace

        PlainLabel {
            objectName: "rank"
            Layout.preferredWidth: Math.max(implicitWidth, Math.ceil(threeFigures.advanceWidth))
            text: row.rank > 0 ? String(row.rank) : ""
            font: AppTheme.subheadlineStrongFont
            secondary: true
            horizontalAlignment: Text.AlignRight
            visible: row.rank > 0
        }
        RowWords {
            objectName: "words"
            Layout.fillWidth: true
            title: row.title
            detail: row.detail
            place: row.place
        }
        RowFigure {
            objectName: "figure"
            Layout.fillWidth: false
            value: row.value
            tint: row.valueTint
            caption: row.valueCaption
        }
        RowLayout {
            id: slot

            objectName: "accessory"
            Layout.fillWidth: false
            Layout.preferredWidth: Math.max(row.accessoryWidth, implicitWidth)
            spacing: 0
            visible: children.length > 1

            Item { Layout.fillWidth: true }
        }
    }

    TextMetrics {
        id: threeFigures
        font: AppTheme.subheadlineStrongFont
        text: "000"
    }
}
