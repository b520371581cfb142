import QtQuick
import Loadwick

// The repositories' cards. All are equally high, so that of many only those are made that the page
// shows or is about to show.
ColumnPlaces {
    id: grid

    cardHeight: cards.count > 0 && cards.itemAt(0) ? cards.itemAt(0).implicitHeight : 0

    Repeater {
        id: cards
        model: grid.count
        ColumnCell { }
    }
}
