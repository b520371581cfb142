import QtQuick
import Loadwick

// What can be done with a text that can be selected.
PlainMenu {
    id: menu

    required property TextEdit edit

    implicitWidth: 160

    PlainMenuItem {
        title: qsTr("Copy")
        detail: ""
        onTriggered: {
            // Without a selection the whole text is meant.
            if (menu.edit.selectedText.length === 0)
                menu.edit.selectAll();
            menu.edit.copy();
        }
    }
}
