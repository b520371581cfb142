import QtQuick
import Loadwick

// The dot of one step. It swells by a spring, or fades where motion is unwanted.
Rectangle {
    id: dot

    required property bool isCurrent
    // 0 for any step, 1 for the current one.
    property real emphasis: 0

    function follow() {
        spring.stop();
        fade.stop();
        const way = AppTheme.reduceMotion ? fade : spring;
        way.to = dot.isCurrent ? 1 : 0;
        way.start();
    }

    implicitWidth: AppTheme.stepDotSide
    implicitHeight: AppTheme.stepDotSide
    radius: width / 2
    color: AppTheme.accent
    opacity: 0.3 + 0.7 * emphasis
    scale: AppTheme.reduceMotion ? 1 : 1 + 0.15 * emphasis
    onIsCurrentChanged: dot.follow()
    Component.onCompleted: dot.emphasis = dot.isCurrent ? 1 : 0

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
