import QtQuick
import QtQuick.Controls
import QtQuick.Controls.impl
import QtQuick.Dialogs.quickimpl
import QtQuick.Templates as Templates
import Loadwick

// The folder that a dialog shows which Qt draws inside the window: a button for it and for each of
// those above, and a field to type a path into.
FolderBreadcrumbBar {
    id: bar

    readonly property Item list: (bar.dialog as Templates.Popup)?.contentItem ?? null

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
        id: parts

        implicitHeight: AppTheme.controlHeight
        currentIndex: bar.currentIndex
        model: bar.contentModel
        orientation: ListView.Horizontal
        highlightMoveDuration: 0
        // All parts have their places, however far they are out of sight.
        cacheBuffer: 100000
        interactive: false
        clip: true
    }
    buttonDelegate: PlainDialogPathButton {
        id: part

        required property int index
        required property string folderName

        // Of the last one. Between two there is a separator.
        KeyNavigation.tab: part.index * 2 === bar.count - 1 ? bar.list : null
        // Of a path that is wider than the bar.
        onActiveFocusChanged: if (part.activeFocus) parts.positionViewAtIndex(part.index * 2, ListView.Contain)
        Accessible.name: ShownName.of(part.folderName)
        contentItem: SilentText {
            text: ShownName.of(part.folderName)
            font: AppTheme.bodyFont
            color: AppTheme.text
            verticalAlignment: Text.AlignVCenter
        }
    }
    separatorDelegate: IconImage {
        source: "qrc:/qt-project.org/imports/QtQuick/Dialogs/quickimpl/images/crumb-separator-icon-round.png"
        sourceSize { width: AppTheme.smallSpace; height: AppTheme.smallSpace }
        width: AppTheme.smallSpace
        height: AppTheme.controlHeight
        color: AppTheme.secondaryText
    }
    upButton: PlainDialogPathButton {
        x: bar.leftPadding
        y: bar.topPadding
        width: AppTheme.controlHeight
        padding: AppTheme.smallSpace
        contentItem: IconImage {
            source: "qrc:/qt-project.org/imports/QtQuick/Dialogs/quickimpl/images/up-icon-round.png"
            sourceSize { width: AppTheme.iconSize; height: AppTheme.iconSize }
            color: AppTheme.text
        }
    }
    textField: TextField {
        id: field

        // Why what was typed is not taken.
        property string objection: ""

        text: (bar.dialog as FileDialogImpl)?.selectedFile
              ?? (bar.dialog as FolderDialogImpl).currentFolder
        rightPadding: field.leftPadding + (field.objection ? words.width + AppTheme.smallSpace : 0)
        KeyNavigation.tab: bar.list
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
