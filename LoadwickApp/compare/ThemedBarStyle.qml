import QtQuick
import Loadwick

// The look of all bars, in the theme's fonts and colours.
BarStyle {
    nameFont: AppTheme.captionFont
    valueFont: AppTheme.captionStrongFont
    headingFont: AppTheme.bodyStrongFont
    text: AppTheme.text
    secondaryText: AppTheme.secondaryText
    track: AppTheme.quietFill
}
