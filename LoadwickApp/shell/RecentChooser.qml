import QtQuick
import QtQuick.Layouts
import Loadwick

// The contents of the RecentMenu: a line to type in, and the repositories that match.
ColumnLayout {
    id: chooser

    required property RecentRepositories recent

    signal chosen(int row)

    // Everything, with the focus in the line.
    function begin() {
        field.clear();
        list.currentIndex = -1;
        field.forceActiveFocus(Qt.PopupFocusReason);
    }

    spacing: AppTheme.tightSpace

    Rectangle {
        Layout.fillWidth: true
        implicitHeight: AppTheme.controlHeight
        radius: AppTheme.tightSpace
        color: AppTheme.quietFill

        PlainLabel {
            anchors { fill: parent; leftMargin: AppTheme.mediumSpace; rightMargin: AppTheme.mediumSpace }
            text: qsTr("Name or path")
            secondary: true
            verticalAlignment: Text.AlignVCenter
            visible: field.displayText.length === 0
            Accessible.ignored: true
        }
        TextInput {
            id: field

            objectName: "filter"
            anchors { fill: parent; leftMargin: AppTheme.mediumSpace; rightMargin: AppTheme.mediumSpace }
            verticalAlignment: TextInput.AlignVCenter
            font: AppTheme.bodyFont
            color: AppTheme.text
            selectionColor: AppTheme.accent
            selectedTextColor: AppTheme.accentText
            selectByMouse: true
            clip: true
            maximumLength: 200
            Accessible.role: Accessible.EditableText
            Accessible.focusable: true
            Accessible.name: qsTr("Name or path of a repository")

            onTextChanged: chooser.recent.filter = field.text
            onAccepted: list.chooseFirst()
            // The page has shortcuts for these keys.
            Keys.onShortcutOverride: event => { event.accepted = list.takesFromField(event.key, field.text); }
            Keys.onPressed: event => {
                event.accepted = list.takesFromField(event.key, field.text);
                if (event.accepted)
                    list.goBy(event.key);
            }
        }
    }
    PlainLabel {
        Layout.fillWidth: true
        Layout.margins: AppTheme.mediumSpace
        text: qsTr("No repository matches.")
        secondary: true
        visible: list.count === 0
    }
    RecentList {
        id: list

        Layout.fillWidth: true
        Layout.fillHeight: true
        Layout.preferredHeight: list.count * list.rowHeight
        recent: chooser.recent
        Accessible.name: qsTr("Scanned repositories")
        onChosen: row => chooser.chosen(row)
        onWentAbove: field.forceActiveFocus(Qt.BacktabFocusReason)
        onTyped: text => {
            field.forceActiveFocus(Qt.OtherFocusReason);
            field.insert(field.length, text);
        }
    }
}
