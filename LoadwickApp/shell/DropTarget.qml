import QtQuick
import Loadwick

// Where a folder can be dropped: the whole of what it is laid over. It shows that it would be taken,
// and for a moment why it was not.
DropArea {
    id: area

    required property FolderDrop folderDrop
    // Whether a sheet lies over the window; nothing behind it is to be reached.
    required property ModalGround ground
    property string objection: ""
    readonly property string words: area.containsDrag ? qsTr("Drop a folder here to choose it") : area.objection

    function refuse(why) {
        area.objection = why;
        refusal.restart();
    }

    onEntered: drag => {
        const isCovered = area.ground.isCovered();
        const why = isCovered ? "" : area.folderDrop.objection(drag.urls);
        drag.accepted = !isCovered && area.folderDrop.accepts(drag.urls);
        refusal.stop();
        if (why.length > 0)
            area.refuse(why);
    }
    onDropped: drop => {
        refusal.stop();
        drop.accepted = area.folderDrop.accepts(drop.urls);
        area.folderDrop.take(drop.urls);
    }

    Loader {
        id: hint

        anchors { fill: parent; margins: AppTheme.smallSpace }
        active: area.containsDrag || refusal.running
        Component.onCompleted: hint.setSource("DropHint.qml", { words: Qt.binding(() => area.words) })
    }
    Timer {
        id: refusal
        interval: 2 * AppTheme.noteDuration
    }
    Connections {
        target: area.folderDrop

        function onRefused() { area.refuse(qsTr("Only a folder can be chosen.")); }
    }
}
