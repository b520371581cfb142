import QtQuick
import QtQuick.Templates
import Loadwick

// The only button of the window: a symbol and words. The words are `title`, because the control's
// own text accepts markup.
AbstractButton {
    id: control

    required property string title
    property string symbol: ""
    property string toolTip: ""
    // The shortcut that presses it from anywhere in the window; the tool tip names it.
    property string shortcut: ""
    // Filled with the accent while enabled: the one next step.
    property bool prominent: false
    // Filled with red while enabled: its effect cannot be undone.
    property bool destructive: false
    // Outlined at rest, for a button that is alone on a card.
    property bool outlined: false
    // For a button whose title changes: it keeps its width, so its neighbours do not move.
    property real leastTextWidth: 0
    readonly property bool filled: (prominent || destructive) && enabled
    readonly property color wordColor: filled ? AppTheme.accentText : AppTheme.text

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: AppTheme.controlHeight
    leftPadding: symbol.length > 0 ? 10 : AppTheme.mediumSpace
    rightPadding: AppTheme.mediumSpace
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    opacity: enabled ? 1 : AppTheme.disabledOpacity

    Accessible.role: Accessible.Button
    Accessible.name: title
    Accessible.description: toolTip
    // No auto-repeat: a held key presses once.
    Keys.onReturnPressed: event => { if (!event.isAutoRepeat) control.clicked(); }
    Keys.onEnterPressed: event => { if (!event.isAutoRepeat) control.clicked(); }

    contentItem: ButtonFace {
        title: control.title
        leastTextWidth: control.leastTextWidth
        symbol: control.symbol
        color: control.wordColor
        font: control.filled ? AppTheme.bodyStrongFont : AppTheme.bodyFont
    }

    background: Rectangle {
        radius: AppTheme.controlRadius
        color: !control.filled ? "transparent" : control.destructive ? AppTheme.bandExcessiveText : AppTheme.accent
        border {
            width: control.outlined && !control.filled ? AppTheme.hairline : 0
            color: AppTheme.separator
        }

        Rectangle {
            anchors.fill: parent
            radius: parent.radius
            color: Qt.alpha(control.wordColor, control.down ? 0.10 : control.hovered ? 0.06 : 0)
        }
    }

    Shortcut {
        sequence: control.shortcut
        autoRepeat: false
        enabled: Boolean(control.Window.activeFocusItem) && control.enabled
        onActivated: control.clicked()
    }

    FocusRing { shown: control.visualFocus }

    HoverTip {
        enabled: control.enabled
        cursorShape: Qt.PointingHandCursor
        words: control.toolTip + (control.toolTip && control.shortcut ? "\n" : "") + control.shortcut
        wanted: control.hovered || control.visualFocus
    }
}
