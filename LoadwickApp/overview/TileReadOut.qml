import QtQuick
import Loadwick

// What one tile stands for. Its place and height are the same whatever it says, so that nothing
// moves while the tiles are walked.
Item {
    id: readOut

    // Empty while no tile is in focus.
    required property string path
    required property string figures
    // What to do to see a path.
    required property string hint
    // As many lines as a path may take before its middle is left out; the figures take two at most.
    property int pathLines: 2
    // A label rounds both parts of a line up.
    readonly property real lineHeight: Math.ceil(metrics.ascent) + Math.ceil(metrics.descent)
    readonly property bool isEmpty: path.length === 0

    implicitHeight: (pathLines + 2) * lineHeight + AppTheme.tightSpace

    FontMetrics {
        id: metrics
        font: AppTheme.bodyStrongFont
    }

    PlainLabel {
        objectName: "hint"
        width: parent.width
        text: readOut.hint
        secondary: true
        wrapMode: Text.Wrap
        visible: readOut.isEmpty
    }
    PlainLabel {
        id: wholePath

        width: parent.width
        text: readOut.path
        wrapMode: Text.WrapAnywhere
        maximumLineCount: readOut.pathLines
        visible: !wholePath.truncated
        Accessible.ignored: readOut.isEmpty || !wholePath.visible
    }
    PlainLabel {
        id: shortPath

        objectName: "shortPath"
        width: parent.width
        text: readOut.path
        elide: Text.ElideMiddle
        maximumLineCount: 1
        visible: wholePath.truncated
    }
    PlainLabel {
        objectName: "figures"
        y: (shortPath.visible ? shortPath.height : wholePath.height) + AppTheme.tightSpace
        width: parent.width
        text: readOut.figures
        font: AppTheme.bodyStrongFont
        wrapMode: Text.Wrap
        visible: !readOut.isEmpty
    }
}
