import QtQuick
import Loadwick

// Rows that share one colour, for a delegate to take it from.
LongList {
    required property color fill
}
