import QtQuick
import Loadwick

// The whole of what a cell had to cut short, from the moment it is made.
Item {
    id: holder

    property string words: ""

    PlainToolTip {
        words: holder.words
        visible: holder.words.length > 0
    }
}
