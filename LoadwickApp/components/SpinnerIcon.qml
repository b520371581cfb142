import QtQuick
import Loadwick

// A symbol that can turn to show that time passes; still under reduced motion, and while it is not
// seen.
Symbol {
    id: icon

    property bool turning: false
    readonly property bool moving: turning && !AppTheme.reduceMotion && icon.Sight.isSeen

    function count(more) { TurnClock.users += more; }

    angle: moving ? TurnClock.angle : 0
    onMovingChanged: icon.count(icon.moving ? 1 : -1)
    Component.onDestruction: if (icon.moving) icon.count(-1)
}
