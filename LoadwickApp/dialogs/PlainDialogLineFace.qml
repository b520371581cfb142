import QtQuick
import QtQuick.Controls.impl
import Loadwick

// What a line says of its folder or file: the name as it is, the size of a file, when it changed.
Item {
    id: face

    required property string name
    required property bool isFolder
    required property double byteCount
    required property date modified
    readonly property string time: Qt.formatDateTime(face.modified)

    implicitWidth: words.implicitWidth

    IconImage {
        anchors.verticalCenter: parent.verticalCenter
        width: AppTheme.iconSize
        source: face.isFolder ? "qrc:/qt-project.org/imports/QtQuick/Dialogs/quickimpl/images/folder-icon-round.png"
            : "qrc:/qt-project.org/imports/QtQuick/Dialogs/quickimpl/images/file-icon-round.png"
        sourceSize { width: AppTheme.iconSize; height: AppTheme.iconSize }
        color: AppTheme.secondaryText
    }
    SilentText {
        id: words

        anchors { left: parent.left; right: details.left; verticalCenter: parent.verticalCenter }
        anchors { leftMargin: AppTheme.iconSize + AppTheme.smallSpace; rightMargin: AppTheme.cardSpace }
        text: face.name
        font: AppTheme.bodyFont
        color: AppTheme.text
        elide: Text.ElideMiddle
        maximumLineCount: 1
    }
    SilentText {
        id: details

        anchors { right: parent.right; verticalCenter: parent.verticalCenter }
        text: face.isFolder ? face.time : Qt.locale().formattedDataSize(face.byteCount) + " · " + face.time
        font: AppTheme.captionFont
        color: AppTheme.secondaryText
    }
}
