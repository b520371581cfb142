import QtQuick
import QtQuick.Templates
import Loadwick

// How the total has changed since the scan before; leads to what changed.
AbstractButton {
    id: button

    required property LatestChangePresenter change

    implicitWidth: implicitContentWidth
    implicitHeight: implicitContentHeight
    padding: 0
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    Accessible.role: Accessible.Button
    Accessible.name: button.change.sentence
    Accessible.description: tip.words
    Keys.onReturnPressed: event => { if (!event.isAutoRepeat) button.clicked(); }
    Keys.onEnterPressed: event => { if (!event.isAutoRepeat) button.clicked(); }
    onClicked: button.change.open()

    contentItem: Row {
        spacing: AppTheme.smallSpace

        TrendPill {
            kind: button.change.kind
            title: button.change.title
            symbol: button.change.symbol
        }
        PlainLabel {
            anchors.verticalCenter: parent.verticalCenter
            text: button.change.since
            font: AppTheme.subheadlineFont
            secondary: true
        }
        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            width: 12
            height: 12
            name: "chevron.right"
            tint: AppTheme.secondaryText
        }
    }
    background: Rectangle {
        anchors { fill: parent; leftMargin: -AppTheme.tightSpace; rightMargin: -AppTheme.smallSpace; topMargin: -AppTheme.tightSpace; bottomMargin: -AppTheme.tightSpace }
        radius: height / 2
        color: button.down ? AppTheme.pressedFill : button.hovered ? AppTheme.hoverFill : "transparent"
    }

    FocusRing {
        shown: button.visualFocus
        controlRadius: button.height / 2
    }
    HoverTip {
        id: tip

        cursorShape: Qt.PointingHandCursor
        words: qsTr("Shows what changed, in Trends")
        wanted: button.hovered || button.visualFocus
    }
}
