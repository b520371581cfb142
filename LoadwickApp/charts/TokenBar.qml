import QtQuick
import Loadwick

// One bar on the track of its scale: the track shows how long a bar can be.
Rectangle {
    id: track

    // How much of the scale it fills, 0 to 1.
    required property real length
    required property color fill

    implicitHeight: 8
    radius: 4
    color: AppTheme.quietFill
    Accessible.ignored: true

    Rectangle {
        objectName: "bar"
        // From the leading edge, whichever that is.
        anchors { left: parent.left; top: parent.top; bottom: parent.bottom }
        // The smallest count can be seen, none at all cannot.
        width: track.length > 0 ? Math.max(2, track.length * track.width) : 0
        radius: 4
        color: track.fill
    }
}
