import QtQuick
import QtQuick.Layouts
import Loadwick

// A band and what it means. It fades in while it rises; where motion is unwanted it only fades in.
Item {
    id: row

    // The place of the band in its order.
    required property int index
    required property string title
    required property string detail
    property bool isMade: false
    // Again whenever the legend is shown anew.
    readonly property bool hasAppeared: isMade && visible
    // How far below its place it is.
    property real rise: hasAppeared || AppTheme.reduceMotion ? 0 : 8

    implicitWidth: line.implicitWidth
    implicitHeight: line.implicitHeight
    opacity: hasAppeared ? 1 : 0
    Component.onCompleted: row.isMade = true

    Behavior on opacity {
        SequentialAnimation {
            PauseAnimation { duration: row.index * AppTheme.legendDelay }
            NumberAnimation { duration: AppTheme.legendDuration; easing.type: Easing.OutQuad }
        }
    }

    Behavior on rise {
        enabled: !AppTheme.reduceMotion
        SequentialAnimation {
            PauseAnimation { duration: row.index * AppTheme.legendDelay }
            NumberAnimation { duration: AppTheme.legendDuration; easing.type: Easing.OutQuad }
        }
    }

    RowLayout {
        id: line

        spacing: AppTheme.smallSpace
        transform: Translate { y: row.rise }

        Rectangle {
            implicitWidth: 10
            implicitHeight: 10
            radius: 5
            color: AppTheme.bandShapes[row.index]
        }
        PlainLabel {
            Layout.preferredWidth: AppTheme.scaled(84)
            text: row.title
            font: AppTheme.bodyStrongFont
            color: AppTheme.bandTexts[row.index]
        }
        PlainLabel {
            text: row.detail
        }
    }
}
