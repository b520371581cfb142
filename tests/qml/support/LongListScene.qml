import QtQuick
import QtQuick.Templates
import Loadwick

// A page that scrolls, with a long list between a head and a foot, and a tab stop before and after it.
Item {
    id: scene

    property alias list: list
    property alias page: page
    property alias head: head
    property alias before: before
    property alias after: after
    // The number of rows that exist.
    property int rowCount: 0
    // The number of rows ever created.
    property int createdCount: 0
    // Keys that the list ignored.
    property string keysLeft: ""

    width: 400
    height: 400
    Keys.onPressed: event => { scene.keysLeft += event.key + " "; }

    Button {
        id: before
        y: -50
        text: "Before"
    }
    Flickable {
        id: page
        width: 400
        height: 300
        contentHeight: column.height

        Column {
            id: column
            width: 400

            Rectangle { id: head; width: 400; height: 120 }
            Item {
                width: 400
                height: list.implicitHeight + 20

                LongList {
                    id: list

                    y: 20
                    width: 400
                    height: implicitHeight
                    viewport: page
                    rowHeight: 30
                    model: 0
                    Accessible.name: "Numbers"
                    delegate: Item {
                        id: row
                        required property int index
                        objectName: "row"
                        width: list.width
                        height: 30
                        Accessible.role: Accessible.ListItem
                        Accessible.name: "Row " + row.index
                        TextInput { objectName: "words" + row.index; width: 100; text: "Words" }
                        Component.onCompleted: {
                            scene.rowCount += 1;
                            scene.createdCount += 1;
                        }
                        Component.onDestruction: scene.rowCount -= 1
                        ListView.onPooled: row.visible = false
                        ListView.onReused: row.visible = true
                    }
                }
            }
            Item { width: 400; height: 200 }
        }
    }
    Button {
        id: after
        y: 340
        text: "After"
    }
}
