import QtQuick
import QtQuick.Dialogs
import Loadwick

FolderDialog {
    id: dialog

    required property DialogFolderChooser chooser

    title: qsTr("Choose a local repository to scan.")
    acceptLabel: qsTr("Choose")
    modality: Qt.WindowModal

    onAccepted: dialog.chooser.accept(dialog.selectedFolder)
    onRejected: dialog.chooser.reject()
}
