import QtQuick
import QtQuick.Templates
import Loadwick

// A quiet scroll bar, visible whenever the content overflows.
ScrollBar {
    id: bar

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    visible: policy !== ScrollBar.AlwaysOff
    policy: size < 1 ? ScrollBar.AlwaysOn : ScrollBar.AlwaysOff
    minimumSize: 0.08
    padding: 2
    hoverEnabled: true
    Accessible.name: qsTr("Scroll position")

    contentItem: Rectangle {
        implicitWidth: 6
        implicitHeight: 6
        radius: 3
        color: Qt.alpha(AppTheme.text, bar.pressed ? 0.45 : bar.hovered ? 0.35 : 0.22)
    }
    background: Item { }
}
