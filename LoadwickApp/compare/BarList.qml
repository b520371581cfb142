import QtQuick
import Loadwick

// The rows of a bar chart, as a list that can be read row by row. While the pointer is on a row that
// cannot show all it has to say, a tool tip does.
LongList {
    id: list

    required property BarStyle style

    // How all bars look, in the theme's fonts and colours.
    component Style: BarStyle {
        nameFont: AppTheme.captionFont
        valueFont: AppTheme.captionStrongFont
        headingFont: AppTheme.bodyStrongFont
        text: AppTheme.text
        secondaryText: AppTheme.secondaryText
        track: AppTheme.quietFill
    }

    HoverTip {
        id: tip

        readonly property BarRow pointed: tip.hovered ? list.rowUnder(tip.point.position.y) as BarRow : null

        about: tip.pointed
        words: tip.pointed ? tip.pointed.tip : ""
    }
}
