import QtQuick
import QtQuick.Layouts
import Loadwick

ColumnLayout {
    spacing: AppTheme.cardSpace

    GalleryGroup {
        title: "At rest, prominent, outlined, disabled"
        PushButton { title: "Choose Repository…"; symbol: "folder"; toolTip: "Choose the folder to measure." }
        PushButton { title: "Scan"; symbol: "waveform.path.ecg"; prominent: true }
        PushButton { title: "Copy Summary"; symbol: "doc.on.doc"; outlined: true }
        PushButton { title: "Scanning…"; symbol: "waveform.path.ecg"; prominent: true; enabled: false }
    }
    GalleryGroup {
        title: "Pressed, with the keyboard's focus, without a symbol"
        PushButton { title: "Pressed"; symbol: "folder"; down: true }
        PushButton { title: "Scan"; symbol: "waveform.path.ecg"; prominent: true; down: true }
        Item {
            implicitWidth: focused.implicitWidth + 8
            implicitHeight: focused.implicitHeight + 8
            PushButton { id: focused; anchors.centerIn: parent; title: "Focused"; symbol: "trash"; outlined: true; FocusRing { shown: true } }
        }
        PushButton { title: "Words only"; outlined: true }
    }
    GalleryGroup {
        title: "Destructive: at rest, pressed, with the keyboard's focus, disabled"
        PushButton { title: "Delete 31 Recorded Scans"; destructive: true }
        PushButton { title: "Delete 31 Recorded Scans"; destructive: true; down: true }
        Item {
            implicitWidth: deleting.implicitWidth + 8
            implicitHeight: deleting.implicitHeight + 8
            PushButton { id: deleting; anchors.centerIn: parent; title: "Delete 31 Recorded Scans"; destructive: true; FocusRing { shown: true } }
        }
        PushButton { title: "Delete 0 Recorded Scans"; destructive: true; enabled: false }
    }
}
