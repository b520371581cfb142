import QtQuick
import Loadwick

// The rows of a bar chart, as a list that can be read row by row. A tool tip completes the row
// under the pointer if that row cannot show everything.
LongList {
    id: list

    required property BarStyle style
    // The colour of bars without one of their own.
    property color fill: AppTheme.quietFill

    HoverTip {
        id: tip

        readonly property BarRow pointed: tip.hovered ? list.rowUnder(tip.point.position.y) as BarRow : null

        about: tip.pointed
        words: tip.pointed ? tip.pointed.tip : ""
    }
}
