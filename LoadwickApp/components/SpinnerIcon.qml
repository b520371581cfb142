import QtQuick
import Loadwick

// A symbol that can turn, once a second, to show that time passes; still under reduced motion.
Symbol {
    id: icon

    property bool turning: false
    readonly property bool moving: turning && visible && !AppTheme.reduceMotion

    onMovingChanged: if (!moving) angle = 0

    NumberAnimation on angle {
        running: icon.moving
        from: 0
        to: 360
        duration: AppTheme.turnDuration
        loops: Animation.Infinite
    }
}
