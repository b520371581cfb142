import QtQuick
import Loadwick

// The positions of a grid's cards: side by side where they fit, wrapping into further lines, all of
// one size. A large grid pools its cards: it has as many lines as a screen can show, plus two. When
// the page scrolls by a line, the cards that left it take over the repositories that appear, one
// card per frame. A ListView that reuses whole lines is shorter, but its first frame took ten times
// as long, and an appearing line (made at once or by asynchronous loaders) up to 30 ms.
Item {
    id: grid

    required property ComparePresenter compare
    required property Flickable viewport

    readonly property int leastWidth: AppTheme.scaled(290)
    readonly property int leastHeight: AppTheme.scaled(200)
    readonly property real gap: AppTheme.cardSpace
    readonly property BarStyle style: ThemedBarStyle { isMirrored: grid.LayoutMirroring.enabled }
    readonly property int count: grid.compare.columnCount
    readonly property bool isLarge: grid.compare.isLarge

    // Lines as even as possible: four cards where three fit become two by two.
    readonly property int lineCount: Math.ceil(grid.count / grid.fitting(grid.width))
    readonly property int acrossCount: Math.max(1, Math.ceil(grid.count / Math.max(1, grid.lineCount)))
    readonly property real cardWidth: Math.floor((grid.width - (grid.acrossCount - 1) * grid.gap) / grid.acrossCount)
    property real cardHeight: 0
    readonly property real lineStep: grid.cardHeight + grid.gap

    // The grid is in a column that scrolls.
    readonly property real pageTop: grid.y + (grid.parent ? grid.parent.y : 0)
    // The viewport is as high as its content while the page is laid out for the first time.
    readonly property real screenHeight: Math.max(Screen.height, grid.Window.height)
    readonly property int middleLine: Math.floor((grid.viewport.contentY + 0.5 * grid.viewport.height - grid.pageTop) / grid.lineStep)
    readonly property int neededLines: grid.cardHeight > 0 ? Math.ceil(grid.screenHeight / grid.lineStep) + 2 : 1
    readonly property int keptLines: grid.isLarge ? Math.min(grid.neededLines, grid.lineCount) : grid.lineCount
    readonly property int firstLine: grid.isLaidOut ? Math.max(0, Math.min(grid.lineCount - grid.keptLines, grid.middleLine - Math.floor(0.5 * grid.keptLines))) : 0
    // Independent of the width: a different number would make all cards again.
    readonly property int mostCells: (Math.ceil(grid.screenHeight / grid.leastHeight) + 2) * grid.fitting(AppTheme.contentWidth)
    readonly property int cellCount: grid.isLarge ? Math.min(grid.count, grid.mostCells) : grid.count

    // Before the first frame nothing has its position or height. After it a large grid makes one
    // card every other frame, and its rows in the frame between: both together exceed a frame.
    property int frameCount: 0
    readonly property bool isLaidOut: grid.frameCount > 1
    readonly property int filledCount: Math.floor(0.5 * grid.frameCount)
    readonly property int madeCount: Math.min(grid.count, Math.floor(0.5 * Math.max(0, grid.frameCount - 1)) + 1)

    // Whether cards are still on lines that left the page, and whether one has moved in this frame.
    property bool hasLateCards: false
    property bool hasMovedCard: false

    // Lets one card move whose next line is at most `reach` lines from the page's middle.
    signal turn(reach: int)

    function fitting(width) {
        return Math.max(1, Math.floor((width + grid.gap) / (grid.leastWidth + grid.gap)));
    }

    // The line that a pooled line shows: when the page scrolls by a line, one pooled line moves,
    // the others stay.
    function lineOf(keptLine) {
        const ahead = (keptLine - grid.firstLine) % grid.keptLines;
        return grid.firstLine + (ahead < 0 ? ahead + grid.keptLines : ahead);
    }

    implicitHeight: Math.max(0, grid.lineCount * grid.lineStep - grid.gap)

    FrameAnimation {
        running: !grid.isLaidOut || (grid.isLarge && grid.filledCount < Math.min(grid.count, grid.keptLines * grid.acrossCount))
        onTriggered: grid.frameCount += 1
    }
    // Cards on the page come first.
    FrameAnimation {
        running: grid.hasLateCards
        onTriggered: {
            grid.hasMovedCard = false;
            grid.turn(1);
            if (!grid.hasMovedCard)
                grid.turn(grid.lineCount);
            grid.hasLateCards = grid.hasMovedCard;
        }
    }
}
