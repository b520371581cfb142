import QtQuick
import Loadwick

// The right end of the toolbar, and a pointer that bobs below its folder.
Item {
    id: callout

    readonly property bool isBobbing: !AppTheme.reduceMotion && callout.Sight.isSeen
    // 0 away from the toolbar, 1 near it.
    property real bob

    implicitWidth: 300
    implicitHeight: bar.height + pointer.height + 20
    onIsBobbingChanged: if (!callout.isBobbing) callout.bob = 0
    Accessible.ignored: true
    // The toolbar ends on the right in every language.
    LayoutMirroring.enabled: false
    LayoutMirroring.childrenInherit: true

    Rectangle {
        id: bar

        anchors { left: parent.left; right: parent.right; top: parent.top }
        height: AppTheme.controlHeight + AppTheme.pageMargin
        radius: AppTheme.controlRadius
        color: AppTheme.window
        border { width: AppTheme.hairline; color: AppTheme.separator }

        Row {
            id: commands

            anchors { right: parent.right; rightMargin: AppTheme.mediumSpace; verticalCenter: parent.verticalCenter }
            spacing: AppTheme.smallSpace

            Rectangle {
                id: folder

                width: 48
                height: AppTheme.controlHeight
                radius: AppTheme.controlRadius
                color: AppTheme.selectionFill

                Symbol {
                    anchors.centerIn: parent
                    name: "folder"
                    tint: AppTheme.accent
                }
            }
            Item {
                width: 48
                height: AppTheme.controlHeight

                Symbol {
                    anchors.centerIn: parent
                    name: "waveform.path.ecg"
                    tint: AppTheme.secondaryText
                }
            }
        }
    }

    Symbol {
        id: pointer

        x: Math.round(commands.x + folder.x + (folder.width - width) / 2)
        y: bar.height + 12 - 6 * callout.bob
        width: 24
        height: 24
        name: "arrow.up"
        tint: AppTheme.accent
    }

    SequentialAnimation on bob {
        running: callout.isBobbing
        loops: Animation.Infinite

        NumberAnimation { from: 0; to: 1; duration: AppTheme.bobDuration; easing.type: Easing.InOutQuad }
        NumberAnimation { from: 1; to: 0; duration: AppTheme.bobDuration; easing.type: Easing.InOutQuad }
    }
}
