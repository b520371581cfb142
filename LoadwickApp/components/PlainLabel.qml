import QtQuick
import QtQuick.Templates as Templates
import Loadwick

// The one label of the window. Whatever it is given is shown letter by letter, never as markup. Of
// the template, not of a style: a style's label makes a palette of its own, which costs more than the
// label.
Templates.Label {
    property bool secondary: false

    textFormat: Text.PlainText
    font: AppTheme.bodyFont
    color: secondary ? AppTheme.secondaryText : AppTheme.text
    linkColor: color
    // Where lines begin is the window's question, not that of the words in them.
    horizontalAlignment: Text.AlignLeft
    lineHeight: 1.0
}
