import QtQuick
import QtQuick.Layouts
import Loadwick

// One line of the table of the largest files: a path and two columns of figures.
Item {
    id: cells

    required property string tokens
    required property string share
    property string file: ""
    property bool isHeader: false
    readonly property font cellFont: isHeader ? AppTheme.captionStrongFont : AppTheme.bodyFont

    RowLayout {
        anchors.fill: parent
        // A share in words is a little wider than its column and reaches to the left of it.
        spacing: AppTheme.wideSpace

        PlainLabel {
            objectName: "fileHeader"
            Layout.fillWidth: true
            text: cells.file
            font: cells.cellFont
            secondary: true
            visible: cells.isHeader
        }
        ElidedPath {
            objectName: "file"
            Layout.fillWidth: true
            text: cells.file
            tabStop: false
            visible: !cells.isHeader
        }
        PlainLabel {
            objectName: "tokens"
            Layout.preferredWidth: AppTheme.figureColumn
            Layout.minimumWidth: AppTheme.figureColumn
            Layout.maximumWidth: AppTheme.figureColumn
            text: cells.tokens
            font: cells.isHeader ? cells.cellFont : AppTheme.bodyStrongFont
            secondary: cells.isHeader
            horizontalAlignment: Text.AlignRight
            LayoutMirroring.enabled: false
        }
        Item {
            objectName: "share"
            Layout.preferredWidth: AppTheme.figureColumn
            Layout.minimumWidth: AppTheme.figureColumn
            Layout.maximumWidth: AppTheme.figureColumn
            implicitWidth: shareLabel.implicitWidth
            implicitHeight: shareLabel.implicitHeight

            PlainLabel {
                id: shareLabel

                anchors.right: parent.right
                text: cells.share
                font: cells.cellFont
                secondary: true
            }
        }
    }
}
