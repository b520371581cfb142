import QtQuick
import QtQuick.Layouts
import Loadwick

// The application's two commands.
Item {
    id: bar

    required property ContentPresenter content

    implicitHeight: AppTheme.controlHeight + 2 * AppTheme.smallSpace

    RowLayout {
        anchors { right: parent.right; rightMargin: AppTheme.cardSpace; verticalCenter: parent.verticalCenter }
        spacing: AppTheme.smallSpace

        PushButton {
            title: "Choose Repository…"
            symbol: "folder"
            enabled: bar.content.canChoose
            onClicked: bar.content.chooseFolder()
        }
        PushButton {
            title: bar.content.scanTitle
            symbol: "waveform.path.ecg"
            toolTip: bar.content.allowanceDisclosure
            prominent: bar.content.scanIsNextStep
            enabled: bar.content.canScan
            onClicked: bar.content.scan()
        }
    }

    Shortcut {
        sequence: "Ctrl+O"
        autoRepeat: false
        enabled: bar.content.canChoose
        onActivated: bar.content.chooseFolder()
    }
    Shortcut {
        sequence: "Ctrl+R"
        autoRepeat: false
        enabled: bar.content.canScan
        onActivated: bar.content.scan()
    }
}
