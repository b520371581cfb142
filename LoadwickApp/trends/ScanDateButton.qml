import QtQuick
import QtQuick.Templates
import QtQuick.Layouts
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

    implicitWidth: Math.max(AppTheme.scaled(240), implicitContentWidth + leftPadding + rightPadding)
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
    onClicked: button.isOpen ? (menu.item as ScanDateMenu).close() : button.open()

    contentItem: RowLayout {
        spacing: AppTheme.mediumSpace

        ScanMark { isFilled: button.isFilled }
        ColumnLayout {
            spacing: 0

            PlainLabel {
                Layout.fillWidth: true
                text: button.caption
                font: AppTheme.captionFont
                secondary: true
                Accessible.ignored: true
            }
            PlainLabel {
                Layout.fillWidth: true
                text: button.date
                font: AppTheme.bodyStrongFont
                Accessible.ignored: true
            }
        }
        Symbol {
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
