import QtQuick
import QtQuick.Dialogs
import Loadwick

FileDialog {
    id: dialog

    required property DialogFileSaver asker

    fileMode: FileDialog.SaveFile
    acceptLabel: qsTr("Save")
    modality: Qt.WindowModal

    onAccepted: dialog.asker.accept(dialog.selectedFile)
    onRejected: dialog.asker.reject()
}
