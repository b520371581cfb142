import QtQuick
import QtQuick.Dialogs
import Loadwick

FolderDialog {
    id: dialog

    required property DialogFolderChooser asker

    title: qsTr("Choose a local repository to scan.")
    acceptLabel: qsTr("Choose")
    modality: Qt.WindowModal

    onAccepted: dialog.asker.accept(dialog.selectedFolder)
    onRejected: dialog.asker.reject()
}
