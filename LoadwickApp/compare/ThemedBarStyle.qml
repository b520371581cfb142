import QtQuick
import Loadwick

// How the bars of this window look.
BarStyle {
    nameFont: AppTheme.captionFont
    valueFont: AppTheme.captionStrongFont
    headingFont: AppTheme.bodyStrongFont
    text: AppTheme.text
    secondaryText: AppTheme.secondaryText
    track: AppTheme.quietFill
}
