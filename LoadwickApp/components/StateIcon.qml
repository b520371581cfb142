import QtQuick
import Loadwick

// The large round symbol above the words of a state.
Rectangle {
    id: mark

    required property string symbol
    required property color tint
    property bool turning: false
    readonly property alias angle: drawing.angle

    implicitWidth: 64
    implicitHeight: 64
    radius: 32
    color: Qt.alpha(tint, AppTheme.tintOpacity)
    Accessible.ignored: true

    SpinnerIcon {
        id: drawing

        anchors.centerIn: parent
        width: 28
        height: 28
        name: mark.symbol
        tint: mark.tint
        turning: mark.turning
    }
}
