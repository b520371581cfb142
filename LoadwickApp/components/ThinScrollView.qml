import QtQuick
import QtQuick.Templates

// A view with a thin scroll bar. A type of its own, because a view moves only the bar that it has
// before its content.
ScrollView {
    id: view

    ScrollBar.vertical: ThinScrollBar {
        objectName: "scrollBar"
        parent: view
        x: view.mirrored ? 0 : view.width - width
        height: view.height
    }
}
