import QtQuick
import Loadwick

// Animates a value from 0 to its end, when it is first visible and whenever `begin` is called.
// Under reduced motion the value is at its end at once.
Item {
    id: sweep

    required property real end
    readonly property real value: sweep.progress * sweep.end
    property real progress: 0
    property bool hasBegun: false

    function begin() {
        sweep.hasBegun = true;
        animation.restart();
        sweep.skip();
    }

    function skip() {
        if (AppTheme.reduceMotion && animation.running)
            animation.complete();
    }

    function appear() {
        if (sweep.visible && !sweep.hasBegun)
            sweep.begin();
    }

    onVisibleChanged: appear()
    Component.onCompleted: appear()

    Connections {
        target: AppTheme
        function onReduceMotionChanged() { sweep.skip(); }
    }

    NumberAnimation {
        id: animation
        target: sweep
        property: "progress"
        from: 0
        to: 1
        duration: Springs.meterDuration
        easing: Springs.meter
    }
}
