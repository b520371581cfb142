import QtQuick
import Loadwick

// Shows the keyboard focus: a line of 2 px in the accent, 2 px outside the control's own edge.
Rectangle {
    required property bool shown
    // The radius of the control it surrounds.
    property real controlRadius: AppTheme.controlRadius

    anchors.fill: parent
    anchors.margins: -4
    radius: controlRadius + 4
    color: "transparent"
    border { width: 2; color: AppTheme.accent }
    visible: shown
    Accessible.ignored: true
}
