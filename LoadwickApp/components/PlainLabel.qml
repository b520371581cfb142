import QtQuick
import QtQuick.Templates
import Loadwick

// The only label of the window. It shows its text literally, never as markup.
Label {
    property bool secondary: false

    textFormat: Text.PlainText
    font: AppTheme.bodyFont
    color: secondary ? AppTheme.secondaryText : AppTheme.text
    linkColor: color
    // The window's direction aligns the lines, not the script of the words.
    horizontalAlignment: Text.AlignLeft
    lineHeight: 1.0
}
