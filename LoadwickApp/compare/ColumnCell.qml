import QtQuick
import Loadwick

// The place of one card in the grid. The card itself is made when it is wanted.
Loader {
    id: cell

    required property int index
    readonly property ColumnPlaces grid: cell.parent as ColumnPlaces
    readonly property int across: cell.index % cell.grid.acrossCount
    readonly property real step: cell.grid.cardWidth + cell.grid.gap
    readonly property bool isLast: cell.across === cell.grid.acrossCount - 1
    readonly property bool isNear: cell.index >= cell.grid.firstNear && cell.index < cell.grid.endNear

    x: (LayoutMirroring.enabled ? cell.grid.acrossCount - 1 - cell.across : cell.across) * cell.step
    y: Math.floor(cell.index / cell.grid.acrossCount) * cell.grid.lineStep
    // The last one takes what the others leave of a whole.
    width: cell.isLast ? cell.grid.width - cell.across * cell.step : cell.grid.cardWidth
    height: cell.grid.cardHeight
    // The first one says how high all are.
    active: cell.index === 0 || !cell.grid.compare.isLarge || cell.isNear

    Component.onCompleted: cell.setSource("ColumnCard.qml", {
        compare: cell.grid.compare,
        column: cell.grid.compare.column(cell.index),
        place: cell.index,
        viewport: cell.grid.viewport
    })
}
