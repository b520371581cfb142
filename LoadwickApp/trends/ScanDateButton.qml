import QtQuick
import QtQuick.Controls
import Loadwick

// The date of one of the two scans that are compared, and the list to choose another one from.
AbstractButton {
    id: button

    required property string caption
    required property string date
    required property string sentence
    required property RowList scans
    // The chosen one of the scans.
    required property int row
    // Shows the scan's mark in the chart: a disc, or a ring.
    property bool isFilled: false
    readonly property bool isOpen: menu.item !== null && (menu.item as Popup).visible

    signal chosen(int row)

    function open() {
        if (menu.status === Loader.Null)
            menu.setSource("ScanDateMenu.qml", { button: button });
        (menu.item as ScanDateMenu).openAt(button.row);
    }

    implicitWidth: AppTheme.scaled(240)
    implicitHeight: AppTheme.scaled(44)
    leftPadding: AppTheme.mediumSpace
    rightPadding: AppTheme.mediumSpace
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    Accessible.role: Accessible.ButtonMenu
    Accessible.name: button.sentence
    Keys.onReturnPressed: event => { if (!event.isAutoRepeat) button.clicked(); }
    Keys.onEnterPressed: event => { if (!event.isAutoRepeat) button.clicked(); }
    Keys.onDownPressed: button.clicked()
    onClicked: button.open()

    contentItem: Item {
        ScanMark {
            anchors { left: parent.left; verticalCenter: parent.verticalCenter }
            isFilled: button.isFilled
        }
        Column {
            anchors { left: parent.left; leftMargin: AppTheme.pageMargin; right: parent.right; rightMargin: AppTheme.pageMargin; verticalCenter: parent.verticalCenter }

            PlainLabel {
                width: parent.width
                text: button.caption
                font: AppTheme.captionFont
                secondary: true
                Accessible.ignored: true
            }
            PlainLabel {
                objectName: "date"
                width: parent.width
                text: button.date
                font: AppTheme.bodyStrongFont
                elide: Text.ElideRight
                maximumLineCount: 1
                Accessible.ignored: true
            }
        }
        Symbol {
            anchors { right: parent.right; verticalCenter: parent.verticalCenter }
            name: "chevron.down"
            tint: AppTheme.secondaryText
        }
    }
    background: Rectangle {
        radius: AppTheme.controlRadius
        color: button.down || button.isOpen ? AppTheme.pressedFill
             : button.hovered ? AppTheme.hoverFill : "transparent"
        border { width: AppTheme.hairline; color: AppTheme.separator }
    }

    FocusRing { shown: button.visualFocus }
    HoverHandler { cursorShape: Qt.PointingHandCursor }

    Loader { id: menu }
}
