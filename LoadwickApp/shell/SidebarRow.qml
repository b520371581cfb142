import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Loadwick

// A page to go to. To assistive technology a plain button stays a button, whatever role it is given.
T.ItemDelegate {
    id: row

    required property int index
    required property string title
    required property string symbol
    // The key that goes to the page from anywhere in the window.
    required property string shortcut
    property bool selected: false
    // Whether the keyboard is here.
    property bool ringed: false
    readonly property color wordColor: selected ? AppTheme.accent : AppTheme.text

    implicitHeight: AppTheme.controlHeight
    leftPadding: AppTheme.smallSpace
    rightPadding: AppTheme.smallSpace
    focusPolicy: Qt.NoFocus
    hoverEnabled: true
    Accessible.role: Accessible.ListItem
    Accessible.name: title
    Accessible.selectable: true
    Accessible.selected: selected

    contentItem: RowLayout {
        spacing: AppTheme.smallSpace

        Symbol {
            name: row.symbol
            tint: row.wordColor
        }
        PlainLabel {
            Layout.fillWidth: true
            text: row.title
            font: row.selected ? AppTheme.bodyStrongFont : AppTheme.bodyFont
            color: row.wordColor
            Accessible.ignored: true
        }
    }

    background: Rectangle {
        radius: AppTheme.controlRadius
        color: row.selected ? AppTheme.selectionFill
             : row.down ? AppTheme.pressedFill
             : row.hovered ? AppTheme.hoverFill : "transparent"
        border { width: row.ringed ? 2 : 0; color: AppTheme.accent }
    }

    HoverHandler { cursorShape: Qt.PointingHandCursor }

    Shortcut {
        sequence: row.shortcut
        autoRepeat: false
        onActivated: row.clicked()
    }

    LateToolTip {
        words: row.shortcut
        wanted: row.hovered
    }
}
