import QtQuick
import Loadwick

// The rows of a bar chart, as a list that can be read row by row. What is too long for a row is said
// while the pointer is on it.
LongList {
    id: list

    required property BarStyle style
    // Of the bars that have no colour of their own.
    property color fill: AppTheme.quietFill

    HoverTip {
        id: tip

        readonly property BarRow pointed: tip.hovered ? list.rowUnder(tip.point.position.y) as BarRow : null

        about: tip.pointed
        words: tip.pointed ? tip.pointed.tip : ""
    }
}
