import QtQuick
import Loadwick

// Where a folder can be dropped: the whole of what it is laid over. It shows that it would be taken.
DropArea {
    id: target

    required property FolderDrop folderDrop
    // Whether a sheet lies over the window; nothing behind it is to be reached.
    required property ModalGround ground

    onEntered: drag => { drag.accepted = !target.ground.isCovered() && target.folderDrop.accepts(drag.urls); }
    onDropped: drop => {
        drop.accepted = target.folderDrop.accepts(drop.urls);
        target.folderDrop.take(drop.urls);
    }

    Loader {
        anchors { fill: parent; margins: AppTheme.smallSpace }
        active: target.containsDrag
        source: "DropHint.qml"
    }
}
