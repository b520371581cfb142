import QtQuick
import Loadwick

// The background of a modal sheet: a card raised well above the window.
Item {
    BorderImage {
        anchors { fill: parent; margins: -24; topMargin: -16; bottomMargin: -32 }
        border { left: 50; top: 50; right: 50; bottom: 50 }
        source: "qrc:/qt/qml/Loadwick/components/card-shadow.png"
        opacity: 0.3
    }
    Rectangle {
        anchors.fill: parent
        radius: AppTheme.cardRadius
        color: AppTheme.surface
        border { width: AppTheme.hairline; color: AppTheme.separator }
    }
}
