import QtQuick
import Loadwick

// One line that leaves out its middle where it is too long; a tool tip then holds the whole.
PlainLabel {
    id: label

    elide: Text.ElideMiddle
    maximumLineCount: 1
    Accessible.name: text

    HoverHandler { id: pointer }
    LateToolTip {
        words: label.text
        wanted: pointer.hovered && label.truncated
    }
}
