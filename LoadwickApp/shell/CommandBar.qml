import QtQuick
import QtQuick.Layouts
import Loadwick

// The application's two commands.
Item {
    id: bar

    required property ContentPresenter content
    required property RecentRepositories recent

    implicitHeight: AppTheme.controlHeight + 2 * AppTheme.smallSpace
    // On the right in every language, as the walk-through says.
    LayoutMirroring.enabled: false
    LayoutMirroring.childrenInherit: true

    RowLayout {
        anchors { right: parent.right; rightMargin: AppTheme.cardSpace; verticalCenter: parent.verticalCenter }
        spacing: AppTheme.smallSpace

        PushButton {
            title: qsTr("Choose Repository…")
            symbol: "folder"
            shortcut: "Ctrl+O"
            enabled: bar.content.canChoose
            onClicked: bar.content.chooseFolder()
        }
        Loader {
            id: recentButton

            Layout.leftMargin: -AppTheme.smallSpace
            active: bar.recent.count > 0
            visible: active
            Component.onCompleted: recentButton.setSource("RecentButton.qml", { content: bar.content, recent: bar.recent })
        }
        PushButton {
            title: bar.content.scanTitle
            leastTextWidth: Math.ceil(longestScanTitle.advanceWidth)
            symbol: "waveform.path.ecg"
            shortcut: "Ctrl+R"
            toolTip: bar.content.allowanceDisclosure
            prominent: bar.content.scanIsNextStep
            enabled: bar.content.canScan
            onClicked: bar.content.scan()
        }
    }

    // The buttons keep their positions: a second press on "Choose" must not start a scan.
    TextMetrics {
        id: longestScanTitle

        font: AppTheme.bodyStrongFont
        text: bar.content.longestScanTitle
    }
}
