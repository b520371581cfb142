import QtQuick
import QtQuick.Dialogs
import Loadwick

FileDialog {
    id: dialog

    required property DialogFileSaver saver

    fileMode: FileDialog.SaveFile
    acceptLabel: qsTr("Save")
    modality: Qt.WindowModal

    onAccepted: dialog.saver.accept(dialog.selectedFile)
    onRejected: dialog.saver.reject()
}
