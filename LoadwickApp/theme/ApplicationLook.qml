import QtQuick
import Loadwick

// AppTheme's colours by QPalette role, and the font.
QtObject {
    readonly property font font: AppTheme.bodyFont
    readonly property color window: AppTheme.window
    readonly property color base: AppTheme.surface
    readonly property color button: AppTheme.sidebar
    readonly property color text: AppTheme.text
    readonly property color placeholderText: AppTheme.secondaryText
    readonly property color disabledText: Qt.alpha(AppTheme.text, AppTheme.disabledOpacity)
    readonly property color highlight: AppTheme.accent
    readonly property color highlightedText: AppTheme.accentText
}
