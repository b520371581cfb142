import QtQuick
import QtQuick.Layouts
import Loadwick

// What is stored on this machine, and the button that deletes it.
ReportSurface {
    id: card

    required property RecordedDataPresenter recordedData

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
    PushButton {
        title: qsTr("Clear Recorded Data…")
        symbol: "trash"
        outlined: true
        enabled: card.recordedData.canClear
        onClicked: confirmation.open()
    }

    ConfirmationDialog {
        id: confirmation

        title: qsTr("Delete every recorded scan?")
        message: qsTr("This cannot be undone. The scan currently on screen stays; only the recorded history is deleted.")
        action: card.recordedData.deleteTitle
        onConfirmed: card.recordedData.clear()
    }
}
