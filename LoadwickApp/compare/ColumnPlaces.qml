import QtQuick
import Loadwick

// Where the cards of a grid stand: side by side where they fit, in further rows where they do not,
// all equally wide and high.
Item {
    id: grid

    required property ComparePresenter compare
    required property Flickable viewport

    readonly property int leastWidth: 290
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
    // The cards on the page and half a window above and below it, from the first to before the last.
    readonly property real lineStep: grid.cardHeight + grid.gap
    readonly property real shownTop: grid.viewport.contentY - grid.pageTop
    readonly property real shownHeight: grid.viewport.height
    readonly property int firstNear: Math.max(0, grid.lineAt(grid.shownTop - 0.5 * grid.shownHeight)) * grid.acrossCount
    readonly property int endNear: grid.isLaidOut
        ? (grid.lineAt(grid.shownTop + 1.5 * grid.shownHeight) + 1) * grid.acrossCount : 0
    // Before the first frame nothing has its place or its height, and all cards would seem near.
    property int frameCount: 0
    readonly property bool isLaidOut: grid.frameCount > 1

    function lineAt(y) {
        return Math.floor(y / grid.lineStep);
    }

    implicitHeight: Math.max(0, grid.lineCount * grid.lineStep - grid.gap)

    FrameAnimation {
        running: !grid.isLaidOut
        onTriggered: grid.frameCount += 1
    }
}
