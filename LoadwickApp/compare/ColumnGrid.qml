import QtQuick
import Loadwick

// The repositories' cards. All are equally high, so that of many there are no more than a page can show.
ColumnPlaces {
    id: grid

    cardHeight: cards.count > 0 && cards.itemAt(0) ? cards.itemAt(0).implicitHeight : 0

    Repeater {
        id: cards
        model: grid.keptCount
        ColumnCell { }
    }
}
