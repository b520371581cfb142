import QtQuick
import QtQuick.Controls
import Loadwick

// The one label of the window. Whatever it is given is shown letter by letter, never as markup.
Label {
    property bool secondary: false

    textFormat: Text.PlainText
    font: AppTheme.bodyFont
    color: secondary ? AppTheme.secondaryText : AppTheme.text
    linkColor: color
    // Where lines begin is the window's question, not that of the words in them.
    horizontalAlignment: Text.AlignLeft
    lineHeight: 1.0
}
