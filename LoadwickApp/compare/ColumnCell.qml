import QtQuick
import Loadwick

// One card of the grid. A pooled card shows another repository when its line moves.
Loader {
    id: cell

    required property int index
    readonly property ColumnPool grid: cell.parent as ColumnPool
    readonly property int across: cell.index % cell.grid.acrossCount
    readonly property int keptLine: Math.floor(cell.index / cell.grid.acrossCount)
    readonly property bool isKept: cell.keptLine < cell.grid.keptLines
    readonly property int nextLine: cell.grid.lineOf(cell.keptLine)
    // Once the cell is complete, it follows `nextLine` when it is this card's turn.
    property int line: cell.nextLine
    readonly property bool isLate: cell.isKept && cell.line !== cell.nextLine
    readonly property int repositoryIndex: cell.line * cell.grid.acrossCount + cell.across
    readonly property real step: cell.grid.cardWidth + cell.grid.gap

    function settle() {
        cell.line = cell.nextLine;
    }

    objectName: "cell"
    x: (LayoutMirroring.enabled ? cell.grid.acrossCount - 1 - cell.across : cell.across) * cell.step
    y: cell.line * cell.grid.lineStep
    // The last one takes the remainder.
    width: cell.across === cell.grid.acrossCount - 1 ? cell.grid.width - cell.across * cell.step : cell.grid.cardWidth
    height: cell.grid.cardHeight
    visible: cell.repositoryIndex < cell.grid.count && cell.isKept
    active: cell.index === 0 || !cell.grid.isLarge || (cell.isKept && cell.index < cell.grid.madeCount)
    onNextLineChanged: if (!cell.grid.isLarge) cell.settle()
    onIsLateChanged: if (cell.isLate) cell.grid.hasLateCards = true
    Component.onCompleted: {
        cell.settle();
        cell.setSource("ColumnCard.qml", {
            compare: cell.grid.compare,
            repositoryIndex: Qt.binding(() => cell.repositoryIndex),
            viewport: cell.grid.viewport,
            style: cell.grid.style,
            isFilled: Qt.binding(() => cell.index < cell.grid.filledCount)
        });
    }

    Connections {
        target: cell.grid

        function onAcrossCountChanged() { cell.settle(); }
        function onTurn(reach) {
            if (cell.grid.hasMovedCard || !cell.isLate || Math.abs(cell.nextLine - cell.grid.middleLine) > reach)
                return;
            cell.grid.hasMovedCard = true;
            cell.settle();
        }
    }
}
