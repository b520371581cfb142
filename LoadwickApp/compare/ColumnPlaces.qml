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
    // The lines that are on the page or half a window above or below it: so many around the one in the
    // middle. Only the middle moves; of two ends one would go first, and in between every card from
    // here to there would be made.
    readonly property real lineStep: grid.cardHeight + grid.gap
    readonly property int middleLine: Math.floor((grid.viewport.contentY + 0.5 * grid.viewport.height - grid.pageTop) / grid.lineStep)
    readonly property int linesAround: grid.isLaidOut ? Math.ceil(grid.viewport.height / grid.lineStep) : -1
    // Before the first frame nothing has its place or its height, and all cards would seem near.
    property int frameCount: 0
    readonly property bool isLaidOut: grid.frameCount > 1

    implicitHeight: Math.max(0, grid.lineCount * grid.lineStep - grid.gap)

    FrameAnimation {
        running: !grid.isLaidOut
        onTriggered: grid.frameCount += 1
    }
}
