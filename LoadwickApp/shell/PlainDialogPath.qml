import QtQuick
import QtQuick.Controls
import QtQuick.Controls.impl
import QtQuick.Dialogs.quickimpl
import Loadwick

// The folder that a dialog shows which Qt draws inside the window: a button for it and for each of
// those above, and a field to type a path into.
FolderBreadcrumbBar {
    id: bar

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
                   + (bar.upButton ? bar.upButton.implicitWidth + bar.upButtonSpacing : 0)
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    upButtonSpacing: AppTheme.smallSpace
    padding: 1

    background: Rectangle {
        color: AppTheme.surface
        radius: AppTheme.controlRadius
        border { width: AppTheme.hairline; color: AppTheme.separator }
    }
    contentItem: ListView {
        implicitHeight: AppTheme.controlHeight
        currentIndex: bar.currentIndex
        model: bar.contentModel
        orientation: ListView.Horizontal
        snapMode: ListView.SnapToItem
        highlightMoveDuration: 0
        interactive: false
        clip: true
    }
    buttonDelegate: PushButton {
        required property int index
        required property string folderName

        title: ShownName.of(folderName)
    }
    separatorDelegate: IconImage {
        source: "qrc:/qt-project.org/imports/QtQuick/Dialogs/quickimpl/images/crumb-separator-icon-round.png"
        sourceSize { width: AppTheme.smallSpace; height: AppTheme.smallSpace }
        width: AppTheme.smallSpace
        height: AppTheme.controlHeight
        color: AppTheme.secondaryText
    }
    upButton: ToolButton {
        id: up

        x: bar.leftPadding
        y: bar.topPadding
        icon {
            source: "qrc:/qt-project.org/imports/QtQuick/Dialogs/quickimpl/images/up-icon-round.png"
            width: AppTheme.iconSize
            height: AppTheme.iconSize
            color: AppTheme.text
        }
        width: AppTheme.controlHeight
        height: AppTheme.controlHeight
        focusPolicy: Qt.TabFocus
        background: Rectangle {
            radius: AppTheme.controlRadius
            color: up.down ? AppTheme.pressedFill : up.hovered ? AppTheme.hoverFill : "transparent"
            border { width: up.visualFocus ? 2 : 0; color: AppTheme.accent }
        }
    }
    textField: TextField {
        id: field

        // Why what was typed is not taken.
        property string objection: ""

        text: (bar.dialog as FileDialogImpl)?.selectedFile
              ?? (bar.dialog as FolderDialogImpl).currentFolder
        rightPadding: field.leftPadding + (field.objection ? words.width + AppTheme.smallSpace : 0)
        Accessible.name: qsTr("Path")
        Accessible.description: field.objection

        SilentText {
            id: words

            anchors { right: parent.right; rightMargin: field.leftPadding; verticalCenter: parent.verticalCenter }
            text: field.objection
            font: AppTheme.captionFont
            color: AppTheme.bandExcessiveText
        }
    }
}
