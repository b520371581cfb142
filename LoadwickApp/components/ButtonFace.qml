import QtQuick
import Loadwick

// The symbol and the words of a button, in the middle of it.
Item {
    id: face

    required property string title
    required property string symbol
    required property color color
    required property font font
    // Width reserved for other words.
    property real leastTextWidth: 0

    implicitWidth: line.implicitWidth + Math.max(0, face.leastTextWidth - words.implicitWidth)
    implicitHeight: line.implicitHeight

    Row {
        id: line
        anchors.centerIn: parent
        spacing: 6

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            name: face.symbol
            tint: face.color
            visible: face.symbol.length > 0
        }
        PlainLabel {
            id: words

            anchors.verticalCenter: parent.verticalCenter
            text: face.title
            font: face.font
            color: face.color
            // The button itself has the accessible name.
            Accessible.ignored: true
        }
    }
}
