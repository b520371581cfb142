import QtQuick
import Loadwick

// A title: a heading to assistive technology, which a PlainLabel cannot be, because every label of
// Qt Quick Controls sets its own role.
Text {
    textFormat: Text.PlainText
    font: AppTheme.headlineFont
    color: AppTheme.text
    linkColor: color
    horizontalAlignment: Text.AlignLeft
    wrapMode: Text.Wrap
    Accessible.role: Accessible.Heading
    Accessible.name: text
}
