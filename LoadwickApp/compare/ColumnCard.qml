import QtQuick
import QtQuick.Layouts
import Loadwick

// One repository's latest scan: its total, and its categories as bars on the scale of all cards.
ReportSurface {
    id: card

    required property ComparePresenter compare
    required property ColumnPresenter column
    // Among all repositories: their colours start again when they are used up.
    required property int place
    required property Flickable viewport
    readonly property color fill: AppTheme.chartColors[card.place % AppTheme.chartColors.length]

    Accessible.role: Accessible.Grouping
    Accessible.name: card.column.name
    Accessible.description: card.column.place

    ColumnHead {
        Layout.fillWidth: true
        column: card.column
        fill: card.fill
    }
    Hairline { Layout.fillWidth: true }
    // As high as all bars are, also for a scan without any.
    Item {
        Layout.fillWidth: true
        implicitHeight: Math.max(1, card.compare.categoryCount) * bars.rowHeight

        TintedList {
            id: bars

            objectName: "bars"
            width: parent.width
            Accessible.name: card.column.chartName
            model: card.column
            viewport: card.viewport
            shortCount: card.compare.isLarge ? 0 : 60
            rowHeight: AppTheme.barRowHeight
            delegate: ColumnBar { }
            fill: card.fill
        }
        SelectableText {
            objectName: "empty"
            width: parent.width
            text: card.column.emptyText
            secondary: true
            visible: card.column.emptyText.length > 0
        }
    }
    ScaleEnds {
        Layout.fillWidth: true
        start: card.compare.scaleStart
        end: card.compare.scaleEnd
    }
}
