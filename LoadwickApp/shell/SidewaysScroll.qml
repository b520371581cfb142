import QtQuick
import QtQuick.Templates
import Loadwick

// Keeps its content at its least width, and scrolls sideways where the window is narrower, as a
// tiling compositor makes it: by wheel, touch or bar, and to the newly focused item. It starts where
// lines start.
Flickable {
    id: view

    required property real leastWidth
    // Nothing is hidden before the window has a width.
    readonly property real farthest: view.width > 0 ? Math.max(0, view.leastWidth - view.width) : 0
    readonly property bool mirrored: LayoutMirroring.enabled
    // The distance scrolled from the start of lines.
    property real distance: 0

    function place() {
        const distance = Math.min(view.distance, view.farthest);
        view.contentX = view.mirrored ? view.farthest - distance : distance;
    }

    function holds(item) {
        let holder = item;
        while (holder && holder !== view.contentItem)
            holder = holder.parent;
        return holder === view.contentItem;
    }

    // An item that is wider than the window shows its start.
    function reveal(item) {
        const left = item.mapToItem(view.contentItem, 0, 0).x - AppTheme.cardSpace;
        const right = left + item.width + 2 * AppTheme.cardSpace;
        const isWide = right - left > view.width;
        const here = isWide && !view.mirrored ? left : Math.max(right - view.width, Math.min(left, view.contentX));
        view.contentX = Math.max(0, Math.min(view.farthest, here));
    }

    // A vertical wheel scrolls the page, unless Shift turns it.
    function isSideways(wheel) {
        return wheel.modifiers & Qt.ShiftModifier || Math.abs(wheel.angleDelta.x) > Math.abs(wheel.angleDelta.y);
    }

    function turn(wheel) {
        const steps = (wheel.angleDelta.x || wheel.angleDelta.y) / 120;
        view.contentX = Math.max(0, Math.min(view.farthest, view.contentX - steps * AppTheme.scrollStep));
    }

    contentWidth: Math.max(view.width, view.leastWidth)
    contentHeight: view.height
    flickableDirection: Flickable.HorizontalFlick
    boundsBehavior: Flickable.StopAtBounds
    interactive: view.farthest > 0
    onFarthestChanged: view.place()
    onMirroredChanged: view.place()
    onContentXChanged: view.distance = view.mirrored ? view.farthest - view.contentX : view.contentX
    ScrollBar.horizontal: bar.item as ScrollBar

    // Created on demand: few windows are so narrow.
    Loader {
        id: bar

        parent: view
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        active: view.farthest > 0
        source: "ThinScrollBar.qml"
    }

    // Over the page, which would take every turn of the wheel.
    MouseArea {
        parent: view
        anchors.fill: parent
        z: 1
        enabled: view.farthest > 0
        acceptedButtons: Qt.NoButton
        onWheel: wheel => {
            wheel.accepted = view.isSideways(wheel);
            if (wheel.accepted)
                view.turn(wheel);
        }
    }

    Window.onActiveFocusItemChanged: if (view.farthest > 0) afterwards.restart()

    // Nothing moves under a pressed pointer, or the release would hit something else. The handler
    // sees a press only after the pressed item.
    Timer {
        id: afterwards

        interval: 0
        onTriggered: {
            const item = view.Window.activeFocusItem;
            if (item && !pointer.active && view.holds(item))
                view.reveal(item);
        }
    }
    PointHandler {
        id: pointer

        parent: view
        target: null
        acceptedButtons: Qt.AllButtons
    }
}
