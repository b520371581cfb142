import QtQuick
import QtQuick.Layouts
import Loadwick

// What is stored on this machine, and the button that deletes it.
ReportSurface {
    id: card

    required property RecordedDataPresenter recordedData
    property int request: -1

    SectionHeader {
        Layout.fillWidth: true
        title: qsTr("Recorded data")
    }
    PlainLabel {
        Layout.fillWidth: true
        text: card.recordedData.storageNote
        secondary: true
        wrapMode: Text.Wrap
    }
    PlainLabel {
        Layout.fillWidth: true
        text: card.recordedData.storagePlatformNote
        secondary: true
        wrapMode: Text.Wrap
        visible: text.length > 0
    }
    SelectableText {
        objectName: "historyFile"
        Layout.fillWidth: true
        text: card.recordedData.historyFile
        visible: text.length > 0
    }
    PushButton {
        title: qsTr("Show in Folder")
        symbol: "folder"
        outlined: true
        enabled: card.recordedData.canClear
        visible: card.recordedData.historyFile.length > 0
        onClicked: card.request = card.recordedData.opener.showInFolder(card.recordedData.historyFile)
    }
    MomentaryNote {
        id: note

        words: ""
        failed: true
    }
    PushButton {
        title: qsTr("Clear Recorded Data…")
        symbol: "trash"
        outlined: true
        enabled: card.recordedData.canClear
        onClicked: confirmation.open()
    }

    Connections {
        target: card.recordedData.opener

        function onFailed(request, words) {
            if (request === card.request) {
                note.words = words;
                note.show();
            }
        }
    }
    ConfirmationDialog {
        id: confirmation

        title: qsTr("Delete every recorded scan?")
        message: qsTr("This cannot be undone. The scan currently on screen stays; only the recorded history is deleted.")
        action: card.recordedData.deleteTitle
        onConfirmed: card.recordedData.clear()
    }
}
