import QtQuick
import Loadwick

// Lines in columns of one width each, for a delegate to take it from.
LongList {
    // Of the repositories' names and of the figures.
    required property real nameWidth
    required property real valueWidth
}
