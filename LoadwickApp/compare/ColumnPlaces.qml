import QtQuick
import Loadwick

// Where the cards of a grid stand: side by side where they fit, in further rows where they do not,
// all equally wide and high.
Item {
    id: grid

    required property ComparePresenter compare
    required property Flickable viewport

    // Of all cards' bars.
    readonly property BarStyle style: ThemedBarStyle { isMirrored: grid.LayoutMirroring.enabled }

    readonly property int leastWidth: AppTheme.scaled(290)
    // No card is lower.
    readonly property int leastHeight: AppTheme.scaled(200)
    readonly property real gap: AppTheme.cardSpace
    readonly property int count: grid.compare.columnCount
    readonly property int fitting: Math.max(1, Math.floor((grid.width + grid.gap) / (grid.leastWidth + grid.gap)))
    readonly property int lineCount: Math.ceil(grid.count / grid.fitting)
    // As even as can be: four cards where three fit stand two by two.
    readonly property int acrossCount: Math.max(1, Math.ceil(grid.count / Math.max(1, grid.lineCount)))
    readonly property real cardWidth: Math.floor((grid.width - (grid.acrossCount - 1) * grid.gap) / grid.acrossCount)
    property real cardHeight: 0
    // Where the grid begins on the page: in a column that scrolls.
    readonly property real pageTop: grid.y + (grid.parent ? grid.parent.y : 0)
    readonly property real lineStep: grid.cardHeight + grid.gap
    readonly property int middleLine: Math.floor((grid.viewport.contentY + 0.5 * grid.viewport.height - grid.pageTop) / grid.lineStep)
    // Of a large grid there are as many cards at a time as a screen can show, and two lines. The number
    // does not lean on the width: with another number all would be made anew.
    readonly property bool isLarge: grid.compare.isLarge
    readonly property int mostAcross: Math.max(1, Math.floor((AppTheme.contentWidth + grid.gap) / (grid.leastWidth + grid.gap)))
    readonly property int mostLines: Math.ceil(grid.screenHeight / grid.leastHeight) + 2
    readonly property real screenHeight: Math.max(Screen.height, grid.viewport.height)
    readonly property int keptCount: grid.isLarge ? Math.min(grid.count, grid.mostLines * grid.mostAcross) : grid.count
    // Of high cards a screen shows fewer.
    readonly property int neededLines: grid.cardHeight > 0 ? Math.ceil(grid.screenHeight / grid.lineStep) + 2 : 1
    readonly property int mostKeptLines: grid.keptCount === grid.count ? grid.lineCount : Math.floor(grid.keptCount / grid.acrossCount)
    readonly property int keptLines: grid.isLarge ? Math.min(grid.neededLines, grid.mostKeptLines) : grid.lineCount
    readonly property int firstLine: grid.isLaidOut ? Math.max(0, Math.min(grid.lineCount - grid.keptLines, grid.middleLine - Math.floor(0.5 * grid.keptLines))) : 0
    readonly property int cardCount: Math.min(grid.count, grid.keptLines * grid.acrossCount)
    // Before the first frame nothing has its place or its height. After it the cards of a large grid
    // are made, in one frame a card, in the next its rows: more at once takes longer than a frame.
    property int frameCount: 0
    readonly property int filledCount: Math.floor(0.5 * grid.frameCount)
    readonly property int madeCount: Math.floor(0.5 * Math.max(0, grid.frameCount - 1)) + 1
    readonly property bool isLaidOut: grid.frameCount > 1

    // Where a kept line stands now: when the page moves on by a line, one of them moves and the others
    // stay as they are.
    function lineOf(keptLine) {
        const ahead = (keptLine - grid.firstLine) % grid.keptLines;
        return grid.firstLine + (ahead < 0 ? ahead + grid.keptLines : ahead);
    }

    // Whether cards stand where they no longer belong, and whether one of them took this frame.
    property bool hasLateCards: false
    property bool isTaken: false

    // The next card within so many lines of the page's middle may move on.
    signal turn(reach: int)

    implicitHeight: Math.max(0, grid.lineCount * grid.lineStep - grid.gap)

    FrameAnimation {
        running: !grid.isLaidOut || (grid.isLarge && grid.filledCount < grid.cardCount)
        onTriggered: grid.frameCount += 1
    }
    // One in a frame, those on the page first: to fill a whole line of cards anew takes longer.
    FrameAnimation {
        running: grid.hasLateCards
        onTriggered: {
            grid.isTaken = false;
            grid.turn(1);
            if (!grid.isTaken)
                grid.turn(grid.lineCount);
            grid.hasLateCards = grid.isTaken;
        }
    }
}
