import QtQuick
import Loadwick

// The place of one card in the grid. Of a large grid there are only as many as the page can show: each
// takes the place of one that has left the page, and shows its repository instead.
Loader {
    id: cell

    required property int index
    readonly property ColumnPlaces grid: cell.parent as ColumnPlaces
    readonly property int across: cell.index % cell.grid.acrossCount
    readonly property int keptLine: Math.floor(cell.index / cell.grid.acrossCount)
    readonly property int nextLine: cell.grid.lineOf(cell.keptLine)
    // Follows: of a large grid when it is this card's turn.
    property int line: -1
    readonly property bool isLate: cell.line !== cell.nextLine
    // Among all repositories.
    readonly property int place: cell.line * cell.grid.acrossCount + cell.across
    readonly property real step: cell.grid.cardWidth + cell.grid.gap
    // The last ones may not fill a line.
    readonly property bool isKept: cell.index < cell.grid.keptLines * cell.grid.acrossCount
    readonly property bool isLast: cell.across === cell.grid.acrossCount - 1

    objectName: "cell"
    x: (LayoutMirroring.enabled ? cell.grid.acrossCount - 1 - cell.across : cell.across) * cell.step
    y: cell.line * cell.grid.lineStep
    // The last one takes what the others leave of a whole.
    width: cell.isLast ? cell.grid.width - cell.across * cell.step : cell.grid.cardWidth
    height: cell.grid.cardHeight
    visible: cell.place < cell.grid.count && cell.isKept
    // The first one says how high all are.
    active: cell.index === 0 || !cell.grid.isLarge || (cell.isKept && cell.index < cell.grid.madeCount)

    function settle() {
        cell.line = cell.nextLine;
    }

    onNextLineChanged: if (!cell.grid.isLarge) cell.settle()
    onIsLateChanged: if (cell.isLate) cell.grid.hasLateCards = true

    Connections {
        target: cell.grid

        function onAcrossCountChanged() { cell.settle(); }
        function onTurn(reach) {
            if (cell.grid.isTaken || !cell.isLate || Math.abs(cell.nextLine - cell.grid.middleLine) > reach)
                return;
            cell.grid.isTaken = true;
            cell.settle();
        }
    }

    Component.onCompleted: {
        cell.settle();
        cell.setSource("ColumnCard.qml", {
            compare: cell.grid.compare,
            place: Qt.binding(() => cell.place),
            viewport: cell.grid.viewport,
            style: cell.grid.style,
            isFilled: Qt.binding(() => cell.index < cell.grid.filledCount)
        });
    }
}
