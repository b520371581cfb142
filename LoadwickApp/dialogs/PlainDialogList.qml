import QtQuick
import Qt.labs.folderlistmodel
import Loadwick

// What the list of a dialog that Qt draws inside the window shows beside its lines.
Item {
    id: face

    required property ListView part
    readonly property FolderListModel folders: face.part.model as FolderListModel
    // Once: the model does not tell of a change.
    property bool showsFiles: false

    parent: face.part
    anchors.fill: parent
    Component.onCompleted: face.showsFiles = face.folders.showFiles

    PlainLabel {
        anchors.centerIn: parent
        // Neither what is hidden nor what may not be looked into is in the list.
        text: face.showsFiles ? qsTr("Nothing to show") : qsTr("No folders to show")
        visible: face.part.count === 0 && face.folders.status !== FolderListModel.Loading
        secondary: true
    }
    // A line that is highlighted shows the keyboard itself.
    FocusRing {
        objectName: "ring"
        anchors.margins: 0
        radius: AppTheme.controlRadius
        shown: face.part.activeFocus && face.part.currentIndex < 0
    }
}
