import QtQuick
import Loadwick

// The repositories' cards, all as high as the first.
ColumnPool {
    id: grid

    cardHeight: cards.count > 0 && cards.itemAt(0) ? cards.itemAt(0).implicitHeight : 0

    Repeater {
        id: cards
        model: grid.cellCount
        ColumnCell { }
    }
}
