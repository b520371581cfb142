import QtQuick
import QtQuick.Layouts
import Loadwick

// One repository's latest scan: its total, and its categories as bars on the scale of all cards.
ReportSurface {
    id: card

    required property ComparePresenter compare
    // Colours repeat after five.
    required property int repositoryIndex
    required property Flickable viewport
    required property BarStyle style
    // Whether it has rows before it is visible: cards become visible three at a time.
    required property bool isFilled
    readonly property ColumnPresenter column: ColumnPresenter {
        compare: card.compare
        number: card.repositoryIndex
    }
    readonly property color fill: AppTheme.chartColors[card.repositoryIndex % AppTheme.chartColors.length]

    // One category: its name and its tokens over its bar.
    component Bar: BarRow {
        id: bar

        required property string category
        required value
        required length
        required isRecorded
        required property string spoken
        readonly property BarList bars: bar.ListView.view ? bar.ListView.view.parent as BarList : null

        objectName: "bar"
        width: bar.bars ? bar.bars.width : 0
        height: bar.bars ? bar.bars.rowHeight : 0
        name: bar.category
        style: bar.bars ? bar.bars.style : null
        fill: bar.bars ? bar.bars.fill : "transparent"
        Accessible.role: Accessible.ListItem
        Accessible.name: bar.spoken
        // Hidden while pooled.
        ListView.onPooled: bar.visible = false
        ListView.onReused: { bar.visible = true; bar.Accessible.ignored = false; }
    }

    onRepositoryIndexChanged: bars.begin()
    Accessible.role: Accessible.Grouping
    Accessible.name: card.column.name
    Accessible.description: card.column.path

    Item {
        Layout.fillWidth: true
        implicitHeight: ends.y + ends.height

        ColumnHead {
            id: head

            width: parent.width
            column: card.column
            fill: card.fill
        }
        Hairline {
            id: line

            y: head.height + card.spacing
            width: parent.width
        }
        BarList {
            id: bars

            objectName: "bars"
            y: line.y + line.height + card.spacing
            width: parent.width
            Accessible.name: card.column.chartName
            model: card.column.bars
            viewport: card.viewport
            shortCount: card.compare.isLarge ? 0 : 60
            isFilled: card.isFilled
            rowHeight: AppTheme.barRowHeight
            style: card.style
            fill: card.fill
            onCopyRequested: index => card.column.bars.copy(index, "spoken")
            delegate: Bar { }
        }
        Loader {
            y: bars.y
            width: parent.width
            active: card.column.emptyText.length > 0
            Component.onCompleted: setSource("SelectableText.qml", {
                objectName: "empty",
                text: Qt.binding(() => card.column.emptyText),
                secondary: true
            })
        }
        ScaleEnds {
            id: ends

            // Below the space for all bars, even for a scan that has none.
            y: bars.y + Math.max(1, card.compare.categoryCount) * bars.rowHeight + card.spacing
            width: parent.width
            start: card.compare.scaleStart
            end: card.compare.scaleEnd
        }
    }
}
