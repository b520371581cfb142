pragma Singleton
import QtQuick

// The one pace of everything that turns: all spinners step at once, so that a step is one frame.
// Once around in a second, by steps that are small enough to be seen as one movement: a step of
// the large symbol is 7 px at its rim. Every frame wakes the program and its display several times,
// for as long as a scan takes.
QtObject {
    id: clock

    // Those that turn count themselves.
    property int users: 0
    property int angle: 0
    readonly property int stepCount: 10

    readonly property Timer pace: Timer {
        interval: 1000 / clock.stepCount
        repeat: true
        running: clock.users > 0
        onTriggered: clock.angle = (clock.angle + 360 / clock.stepCount) % 360
    }
}
