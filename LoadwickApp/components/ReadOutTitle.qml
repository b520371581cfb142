import QtQuick
import Loadwick

// A name on as many lines as it may take, or a path on as many; a path that takes more stands on one
// line without its middle.
Item {
    id: title

    required property string text
    required property bool isPath
    required property int mostLines
    readonly property bool isCut: title.isPath && whole.truncated

    implicitWidth: Math.ceil(whole.implicitWidth)
    implicitHeight: title.isCut ? cut.implicitHeight : whole.implicitHeight

    PlainLabel {
        id: whole

        objectName: "title"
        width: title.width
        text: title.text
        font: title.isPath ? AppTheme.bodyFont : AppTheme.bodyStrongFont
        wrapMode: title.isPath ? Text.WrapAnywhere : Text.Wrap
        elide: title.isPath ? Text.ElideNone : Text.ElideRight
        maximumLineCount: title.mostLines
        visible: !title.isCut
    }
    PlainLabel {
        id: cut

        objectName: "shortPath"
        width: title.width
        text: title.isPath ? title.text : ""
        elide: Text.ElideMiddle
        maximumLineCount: 1
        visible: title.isCut
    }
}
