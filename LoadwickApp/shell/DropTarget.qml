import QtQuick
import Loadwick

// A drop target for folders over its whole parent. It shows that the folder would be accepted, and
// briefly why it was not.
DropArea {
    id: area

    required property FolderDrop folderDrop
    // Whether a modal sheet is open; nothing behind it can be reached.
    required property ModalGround ground
    property string refusalReason: ""
    readonly property string words: area.containsDrag ? qsTr("Drop a folder here to choose it") : area.refusalReason

    function refuse(why) {
        area.refusalReason = why;
        refusal.restart();
    }

    onEntered: drag => {
        const isCovered = area.ground.isCovered();
        const why = isCovered ? "" : area.folderDrop.refusalReason(drag.urls);
        drag.accepted = !isCovered && area.folderDrop.accepts(drag.urls);
        refusal.stop();
        if (why.length > 0)
            area.refuse(why);
    }
    onDropped: drop => {
        refusal.stop();
        drop.accepted = area.folderDrop.accepts(drop.urls);
        area.folderDrop.take(drop.urls);
    }

    Rectangle {
        anchors { fill: parent; margins: AppTheme.smallSpace }
        visible: area.containsDrag || refusal.running
        Accessible.role: Accessible.Notification
        Accessible.name: area.words
        radius: AppTheme.cardRadius
        color: Qt.alpha(AppTheme.window, 0.95)
        border { width: 2; color: AppTheme.accent }

        Column {
            anchors.centerIn: parent
            spacing: AppTheme.cardSpace

            StateIcon {
                anchors.horizontalCenter: parent.horizontalCenter
                symbol: "folder"
                tint: AppTheme.accent
            }
            PlainLabel {
                anchors.horizontalCenter: parent.horizontalCenter
                text: area.words
                Accessible.ignored: true
                font: AppTheme.headlineFont
            }
        }
    }
    Timer {
        id: refusal
        interval: 2 * AppTheme.noteDuration
    }
    Connections {
        target: area.folderDrop

        function onRefused() { area.refuse(qsTr("Only a folder can be chosen.")); }
    }
}
