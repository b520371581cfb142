import QtQuick
import Loadwick

// One dot per step, larger and fuller for the current one.
Row {
    id: dots

    required property int currentIndex
    required property int stepCount
    // The position in words.
    required property string position

    // The dot of one step. It grows with a spring; with reduced motion it fades.
    component Dot: Item {
        id: dot

        required property bool isCurrent
        // 0 for any step, 1 for the current one.
        property real emphasis: 0

        readonly property real sizeFactor: AppTheme.reduceMotion ? 1 : 1 + 0.15 * emphasis

        function follow() {
            spring.stop();
            fade.stop();
            const way = AppTheme.reduceMotion ? fade : spring;
            way.to = dot.isCurrent ? 1 : 0;
            way.start();
        }

        implicitWidth: AppTheme.stepDotSide
        implicitHeight: AppTheme.stepDotSide
        opacity: 0.3 + 0.7 * emphasis
        onIsCurrentChanged: dot.follow()
        Component.onCompleted: dot.emphasis = dot.isCurrent ? 1 : 0

        // Resized, not scaled: the software renderer tears a small scaled circle.
        Rectangle {
            objectName: "disc"
            x: (dot.width - width) / 2
            y: (dot.height - height) / 2
            width: AppTheme.stepDotSide * dot.sizeFactor
            height: width
            radius: width / 2
            color: AppTheme.accent
        }

        NumberAnimation {
            id: spring
            target: dot
            property: "emphasis"
            duration: Springs.stepDotDuration
            easing: Springs.stepDot
        }
        NumberAnimation {
            id: fade
            target: dot
            property: "emphasis"
            duration: AppTheme.stillDotDuration
            easing.type: Easing.OutQuad
        }
    }

    spacing: AppTheme.smallSpace
    Accessible.role: Accessible.StaticText
    Accessible.name: dots.position

    Repeater {
        model: dots.stepCount
        delegate: Dot {
            id: stepDot

            required property int index

            isCurrent: stepDot.index === (stepDot.parent as OnboardingStepDots)?.currentIndex
        }
    }
}
