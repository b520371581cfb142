import QtQuick
import Loadwick

// The words of an item that is named for assistive technology itself: looks like a PlainLabel.
Text {
    textFormat: Text.PlainText
    horizontalAlignment: Text.AlignLeft
    linkColor: color
}
