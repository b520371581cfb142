import QtQuick
import Loadwick

// The rows of a bar chart, as a list that can be read row by row. While the pointer is on a row that
// cannot show all it has to say, a tool tip does.
LongList {
    id: list

    required property BarStyle style
    // The colour of bars that have none of their own.
    property color fill: AppTheme.quietFill

    HoverTip {
        id: tip

        readonly property BarRow pointed: tip.hovered ? list.rowUnder(tip.point.position.y) as BarRow : null

        about: tip.pointed
        words: tip.pointed ? tip.pointed.tip : ""
    }
}
