import QtQuick
import Loadwick

// The shadow of a card that the pointer is on: black at 0.16, blurred over 16, a third of that lower.
// The blur itself never changes: only its strength does, which costs nothing in any renderer.
BorderImage {
    id: shadow

    required property bool shown
    // It comes as it goes.
    property bool isMade: false

    objectName: "shadow"
    anchors { fill: parent; margins: -24; topMargin: -24 + 16 / 3; bottomMargin: -24 - 16 / 3 }
    z: -1
    border { left: 50; top: 50; right: 50; bottom: 50 }
    source: "qrc:/qt/qml/Loadwick/components/card-shadow.png"
    opacity: shadow.shown && shadow.isMade ? 0.16 : 0
    visible: opacity > 0
    Component.onCompleted: shadow.isMade = true

    Behavior on opacity {
        enabled: !AppTheme.reduceMotion
        NumberAnimation { duration: AppTheme.hoverDuration; easing.type: Easing.OutQuad }
    }
}
