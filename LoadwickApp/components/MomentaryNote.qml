import QtQuick
import Loadwick

// Briefly confirms that something was done, then disappears.
Row {
    id: note

    required property string words

    function show() { moment.restart(); }

    spacing: AppTheme.tightSpace
    visible: moment.running
    Accessible.role: Accessible.Notification
    Accessible.name: note.words

    Symbol {
        anchors.verticalCenter: parent.verticalCenter
        name: "checkmark.circle.fill"
        tint: AppTheme.bandLeanText
    }
    PlainLabel {
        anchors.verticalCenter: parent.verticalCenter
        text: note.words
        color: AppTheme.bandLeanText
        Accessible.ignored: true
    }

    Timer {
        id: moment
        interval: AppTheme.noteDuration
    }
}
