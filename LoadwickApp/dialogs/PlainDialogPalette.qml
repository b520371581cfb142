import QtQuick
import QtQuick.Controls
import Loadwick

// Gives a part of a dialog that Qt draws inside the window the window's colours.
Item {
    id: look

    required property QtObject part
    readonly property color buttonGround: Qt.tint(AppTheme.window, AppTheme.pressedFill)
    readonly property color pressedGround: Qt.tint(look.buttonGround, AppTheme.pressedFill)
    readonly property color quietText: Qt.alpha(AppTheme.text, AppTheme.disabledOpacity)

    Binding { target: look.part; property: "palette.window"; value: AppTheme.surface }
    // Above and below the list.
    Binding { target: look.part; property: "palette.light"; value: AppTheme.window }
    Binding { target: look.part; property: "palette.base"; value: AppTheme.surface }
    Binding { target: look.part; property: "palette.button"; value: look.buttonGround }
    Binding { target: look.part; property: "palette.midlight"; value: look.pressedGround }
    // Edges, and what a pressed button turns to.
    Binding { target: look.part; property: "palette.mid"; value: AppTheme.separator }
    Binding {
        target: look.part
        property: "palette.dark"
        // The edge of the dialog, but the arrows of a box.
        value: look.part as ComboBox ? AppTheme.secondaryText : AppTheme.separator
    }

    Binding { target: look.part; property: "palette.text"; value: AppTheme.text }
    Binding { target: look.part; property: "palette.windowText"; value: AppTheme.text }
    Binding { target: look.part; property: "palette.buttonText"; value: AppTheme.text }
    Binding { target: look.part; property: "palette.placeholderText"; value: AppTheme.secondaryText }
    Binding { target: look.part; property: "palette.highlight"; value: AppTheme.accent }
    Binding {
        target: look.part
        property: "palette.highlightedText"
        // Qt fills what is selected in a field with the accent, but a line of a list hardly at all.
        value: look.part as TextInput ? AppTheme.accentText : AppTheme.text
    }
    Binding { target: look.part; property: "palette.disabled.buttonText"; value: look.quietText }
}
