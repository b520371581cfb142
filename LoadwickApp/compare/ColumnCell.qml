import QtQuick
import Loadwick

// The place of one card in the grid. The card itself is made when it is wanted.
Loader {
    id: cell

    required property int index
    readonly property ColumnPlaces grid: cell.parent as ColumnPlaces
    readonly property int across: cell.index % cell.grid.acrossCount
    readonly property int line: Math.floor(cell.index / cell.grid.acrossCount)
    readonly property real step: cell.grid.cardWidth + cell.grid.gap
    readonly property bool isLast: cell.across === cell.grid.acrossCount - 1
    readonly property bool isNear: Math.abs(cell.line - cell.grid.middleLine) <= cell.grid.linesAround

    objectName: "cell"
    x: (LayoutMirroring.enabled ? cell.grid.acrossCount - 1 - cell.across : cell.across) * cell.step
    y: cell.line * cell.grid.lineStep
    // The last one takes what the others leave of a whole.
    width: cell.isLast ? cell.grid.width - cell.across * cell.step : cell.grid.cardWidth
    height: cell.grid.cardHeight
    // The first one says how high all are. The others are made between the frames: to make a whole
    // line of them takes longer than one.
    asynchronous: cell.index > 0 && cell.grid.compare.isLarge
    active: cell.index === 0 || !cell.grid.compare.isLarge || cell.isNear

    Component.onCompleted: cell.setSource("ColumnCard.qml", {
        compare: cell.grid.compare,
        column: cell.grid.compare.column(cell.index),
        place: cell.index,
        viewport: cell.grid.viewport,
        style: cell.grid.style
    })
}
