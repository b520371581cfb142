import QtQuick
import QtQuick.Layouts
import Loadwick

// What each band means. Its rows arrive one after another.
ColumnLayout {
    id: legend

    required property OnboardingPresenter onboarding

    // A band and what it means. It fades in while it rises; with reduced motion it only fades in.
    component BandRow: Item {
        id: row

        // The index of the band.
        required property int index
        required property string title
        required property string detail
        property bool isMade: false
        // Each time the legend is shown.
        readonly property bool hasAppeared: isMade && visible
        // The distance below its final position.
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

    spacing: AppTheme.mediumSpace

    ColumnLayout {
        Layout.alignment: Qt.AlignHCenter
        spacing: AppTheme.smallSpace

        Repeater {
            model: legend.onboarding.legend
            delegate: BandRow {}
        }
    }
    PlainLabel {
        Layout.alignment: Qt.AlignHCenter
        text: legend.onboarding.legendCaption
        font: AppTheme.captionFont
        secondary: true
    }
}
