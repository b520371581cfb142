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

    function show() {
        moment.restart();
        Announcer.announce(note.words);
    }

    spacing: AppTheme.tightSpace
    visible: isShown

    Symbol {
        anchors.verticalCenter: parent.verticalCenter
        name: note.failed ? "exclamationmark.triangle.fill" : "checkmark.circle.fill"
        tint: note.tint
    }
    PlainLabel {
        anchors.verticalCenter: parent.verticalCenter
        text: note.words
        Accessible.ignored: !note.isShown
        color: note.tint
    }

    Timer {
        id: moment
        interval: note.failed ? 3 * AppTheme.noteDuration : AppTheme.noteDuration
    }
}
