import QtQuick
import Loadwick

// Briefly confirms that something was done, or says why it was not, then disappears.
Row {
    id: note

    required property string words
    property bool failed: false
    // `visible` also tells whether the parent is.
    readonly property bool isShown: moment.running
    readonly property color tint: failed ? AppTheme.bandHeavyText : AppTheme.bandLeanText

    function show() { moment.restart(); }

    spacing: AppTheme.tightSpace
    visible: isShown
    Accessible.role: Accessible.Notification
    Accessible.name: note.words

    Symbol {
        anchors.verticalCenter: parent.verticalCenter
        name: note.failed ? "exclamationmark.triangle.fill" : "checkmark.circle.fill"
        tint: note.tint
    }
    PlainLabel {
        anchors.verticalCenter: parent.verticalCenter
        text: note.words
        color: note.tint
        Accessible.ignored: true
    }

    Timer {
        id: moment
        interval: note.failed ? 3 * AppTheme.noteDuration : AppTheme.noteDuration
    }
}
