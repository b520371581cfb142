import QtQuick
import QtQuick.Dialogs.quickimpl
import Loadwick

// A folder or file in the list of a dialog that Qt draws inside the window.
FileDialogDelegate {
    id: line

    required property int index
    required property string fileName
    required property url fileUrl
    required property double fileSize
    required property date fileModified
    required property bool fileIsDir
    // Qt sets it.
    property int fileDetailRowWidth: 0

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: AppTheme.tableRowHeight
    leftPadding: AppTheme.mediumSpace
    rightPadding: AppTheme.cardSpace
    topPadding: 0
    bottomPadding: 0
    // The arrow keys lead from line to line.
    focusPolicy: Qt.ClickFocus
    file: line.fileUrl
    Accessible.name: ShownName.of(line.fileName)

    function answerKey(event) {
        event.accepted = line.fileIsDir;
        if (line.fileIsDir && !event.isAutoRepeat)
            FolderLine.enter(line);
    }

    onDoubleClicked: if (line.fileIsDir) FolderLine.enter(line)
    Keys.onReturnPressed: event => line.answerKey(event)
    Keys.onEnterPressed: event => line.answerKey(event)
    Keys.onSpacePressed: event => line.answerKey(event)
    Component.onCompleted: {
        if (line.fileIsDir)
            FolderLine.takeFromQt(line);
        // Where Tab leads the list knows, for whichever line.
        line.KeyNavigation.tab = null;
        line.KeyNavigation.backtab = null;
    }

    contentItem: PlainDialogLineFace {
        name: ShownName.of(line.fileName)
        isFolder: line.fileIsDir
        byteCount: line.fileSize
        modified: line.fileModified
    }

    background: Rectangle {
        radius: AppTheme.controlRadius
        color: line.highlighted ? AppTheme.selectionFill
             : line.down ? AppTheme.pressedFill : "transparent"

        // Only what is highlighted is filled, or a line under the pointer would look chosen.
        FocusRing {
            // The list cuts off what is around a line.
            anchors.margins: 0
            radius: AppTheme.controlRadius
            shown: line.visualFocus
        }
    }
}
