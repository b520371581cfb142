import QtQuick
import QtQuick.Templates as Templates
import Loadwick

// The one label of the window. It shows its text letter by letter, never as markup. It derives from the
// template, since a style's label makes a palette of its own, which costs more than the label.
Templates.Label {
    property bool secondary: false

    textFormat: Text.PlainText
    font: AppTheme.bodyFont
    color: secondary ? AppTheme.secondaryText : AppTheme.text
    linkColor: color
    // The window decides where lines begin, not the script of the words.
    horizontalAlignment: Text.AlignLeft
    lineHeight: 1.0
}
