import QtQuick
import QtQuick.Layouts
import Loadwick

// One instruction file: its path and estimated cost, or that it could not be read.
Item {
    id: row

    required property int index
    required property string path
    required property string size
    required property string amount
    required property string share
    required property bool isReadable
    required property string importer
    required property string chain
    required property string words

    // What assistive technology asks for.
    function showMenu() { (row.ListView.view as LongListRows).menuRequested(row.index); }

    Accessible.role: Accessible.ListItem
    Accessible.name: row.words
    Accessible.focusable: true
    Accessible.onPressAction: (row.ListView.view as LongListRows).openRequested(row.index)
    // Hidden while pooled.
    ListView.onPooled: row.visible = false
    ListView.onReused: { row.visible = true; row.Accessible.ignored = false; }

    Hairline {
        width: parent.width
        visible: row.index > 0
    }
    RowLayout {
        anchors.fill: parent
        spacing: AppTheme.cardSpace

        ColumnLayout {
            Layout.fillWidth: true
            spacing: 2

            ElidedPath {
                objectName: "path"
                Layout.fillWidth: true
                text: row.path
                tabStop: false
            }
            PlainLabel {
                id: bytes

                objectName: "size"
                Layout.fillWidth: true
                text: row.size
                font: AppTheme.captionFont
                color: row.isReadable ? AppTheme.secondaryText : AppTheme.bandHeavyText
                wrapMode: Text.Wrap
                maximumLineCount: 2
                elide: Text.ElideRight

                HoverTip { words: bytes.truncated ? bytes.text : "" }
            }
            PlainLabel {
                id: reason

                objectName: "importer"
                Layout.fillWidth: true
                text: row.importer
                font: AppTheme.captionFont
                secondary: true
                elide: Text.ElideMiddle
                maximumLineCount: 1
                visible: row.importer.length > 0

                HoverTip {
                    objectName: "tip"
                    words: reason.truncated || row.chain !== row.importer ? row.chain : ""
                }
            }
        }
        ColumnLayout {
            Layout.fillWidth: false
            // From right to left, figures end in one column only if it has one width.
            Layout.minimumWidth: row.LayoutMirroring.enabled ? Math.min(AppTheme.scaled(144), 0.35 * row.width) : 0
            spacing: 2
            visible: row.isReadable

            PlainLabel {
                objectName: "amount"
                Layout.fillWidth: true
                text: row.amount
                font: AppTheme.bodyStrongFont
                horizontalAlignment: Text.AlignRight
                LayoutMirroring.enabled: false
            }
            PlainLabel {
                objectName: "share"
                Layout.fillWidth: true
                text: row.share
                font: AppTheme.captionFont
                secondary: true
                horizontalAlignment: Text.AlignRight
                LayoutMirroring.enabled: false
            }
        }
    }
}
