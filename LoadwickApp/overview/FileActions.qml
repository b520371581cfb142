import QtQuick
import Loadwick

// Lies over a list or a map of files: opens the one that is pressed twice or chosen by a key, and
// has a menu for it. Forward the keys of what it lies over.
Item {
    id: actions

    required property FileOpener opener
    required property RowList rows
    // The file at `point`, where the pointer was pressed last, and the one that the keys have
    // reached; -1 for none.
    required property int rowAtPoint
    required property int currentRow
    // The lower left corner of the file `row`.
    required property point corner
    // The lower left corner of the note on what was done.
    property point noteCorner: actions.corner
    property point point: Qt.point(-1, -1)
    property int row: -1
    property int request: -1
    // Created when first opened.
    property PlainMenu menu: null

    function openFile(row) {
        if (row >= 0) {
            actions.row = row;
            actions.request = actions.opener.open(actions.rows.text(row, "path"));
        }
    }

    function showInFolder() {
        actions.request = actions.opener.showInFolder(actions.rows.text(actions.row, "path"));
    }

    function copy(role) {
        actions.rows.copy(actions.row, role);
        note.tell(qsTr("Copied"), false);
    }

    function openMenu(row) {
        actions.row = row;
        actions.openMenuAt(actions.corner);
    }

    function openMenuAt(place) {
        if (actions.row < 0)
            return;
        if (!actions.menu)
            actions.menu = maker.createObject(actions, { actions: actions }) as PlainMenu;
        actions.menu.popup(actions, place.x, place.y);
    }

    function pressAt(point) {
        actions.point = point.position;
        actions.row = actions.rowAtPoint;
    }

    Keys.onPressed: event => {
        const opens = event.key === Qt.Key_Return || event.key === Qt.Key_Enter;
        const wantsMenu = event.key === Qt.Key_Menu || (event.key === Qt.Key_F10 && event.modifiers === Qt.ShiftModifier);
        event.accepted = (opens || wantsMenu) && actions.currentRow >= 0;
        if (event.accepted && !event.isAutoRepeat && opens)
            actions.openFile(actions.currentRow);
        else if (event.accepted && !event.isAutoRepeat)
            actions.openMenu(actions.currentRow);
    }

    TapHandler {
        onDoubleTapped: point => {
            actions.pressAt(point);
            actions.openFile(actions.row);
        }
    }
    TapHandler {
        acceptedButtons: Qt.RightButton
        onTapped: point => {
            actions.pressAt(point);
            actions.openMenuAt(actions.point);
        }
    }
    TapHandler {
        id: finger

        acceptedDevices: PointerDevice.TouchScreen | PointerDevice.Stylus
        onLongPressed: {
            actions.pressAt(finger.point);
            actions.openMenuAt(actions.point);
        }
    }
    Connections {
        target: actions.opener

        function onFailed(request, words) {
            if (request === actions.request)
                note.tell(words, true);
        }
    }
    Rectangle {
        x: actions.noteCorner.x
        y: actions.noteCorner.y - height
        width: note.width + 2 * AppTheme.smallSpace
        height: note.height + 2 * AppTheme.tightSpace
        radius: AppTheme.controlRadius
        color: AppTheme.surface
        border { width: AppTheme.hairline; color: AppTheme.separator }
        visible: note.isShown

        MomentaryNote {
            id: note

            function tell(words, failed) {
                note.words = words;
                note.failed = failed;
                note.show();
            }

            objectName: "fileNote"
            x: AppTheme.smallSpace
            y: AppTheme.tightSpace
            words: ""
        }
    }
    Component {
        id: maker

        PlainMenu {
            id: menu

            required property FileActions actions

            implicitWidth: 240

            PlainMenuItem {
                title: qsTr("Open")
                detail: ""
                onTriggered: menu.actions.openFile(menu.actions.row)
            }
            PlainMenuItem {
                title: qsTr("Show in Folder")
                detail: ""
                onTriggered: menu.actions.showInFolder()
            }
            PlainMenuItem {
                title: qsTr("Copy Path")
                detail: ""
                onTriggered: menu.actions.copy("path")
            }
            PlainMenuItem {
                title: qsTr("Copy Path in Repository")
                detail: ""
                enabled: menu.actions.rows.text(menu.actions.row, "pathInRepository").length > 0
                onTriggered: menu.actions.copy("pathInRepository")
            }
        }
    }
}
