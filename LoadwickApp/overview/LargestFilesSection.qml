import QtQuick
import QtQuick.Layouts
import Loadwick

// The heaviest instruction files.
ReportSurface {
    id: section

    required property RowList rows
    required property FileOpener opener
    required property Flickable viewport
    readonly property bool isEmpty: section.rows.count === 0

    // One line of the table: a path and two columns of figures.
    component Cells: Item {
        id: cells

        required property string tokens
        required property string share
        property string file: ""
        property bool isHeader: false
        readonly property font cellFont: isHeader ? AppTheme.captionStrongFont : AppTheme.bodyFont

        RowLayout {
            anchors.fill: parent
            // A share in words is a little wider than its column and extends to the left of it.
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

    SectionHeader {
        id: header

        Layout.fillWidth: true
        title: qsTr("Largest instruction files")
        detail: qsTr("The top five by local estimate; every file is listed in the section above.")
    }
    PlainLabel {
        objectName: "empty"
        Layout.fillWidth: true
        text: qsTr("No instruction files were found for this scan.")
        secondary: true
        wrapMode: Text.Wrap
        visible: section.isEmpty
    }
    ColumnLayout {
        Layout.fillWidth: true
        spacing: 0
        visible: !section.isEmpty

        Cells {
            objectName: "header"
            Layout.fillWidth: true
            Layout.preferredHeight: AppTheme.scaled(28)
            isHeader: true
            file: qsTr("File")
            tokens: qsTr("Tokens")
            share: qsTr("% of total")
        }
        Hairline { Layout.fillWidth: true }
        LongList {
            id: list

            objectName: "list"
            Layout.fillWidth: true
            rowHeight: AppTheme.tableRowHeight
            viewport: section.viewport
            model: section.rows
            Accessible.name: header.title
            Keys.forwardTo: [actions]
            onCopyRequested: index => section.rows.copy(index, "path")
            onOpenRequested: index => actions.openFile(index)
            onMenuRequested: index => actions.openMenu(index)

            delegate: Cells {
                id: row

                required property int index
                required property string path
                required property string words

                // What assistive technology asks for.
                function showMenu() { (row.ListView.view as LongListRows).menuRequested(row.index); }

                width: ListView.view.width
                height: AppTheme.tableRowHeight
                file: row.path
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
            }

            FileActions {
                id: actions

                anchors.fill: parent
                opener: section.opener
                rows: section.rows
                rowAtPoint: Math.floor(actions.point.y / list.rowHeight)
                currentRow: list.currentIndex
                corner: Qt.point(0, (actions.row + 1) * list.rowHeight)
            }
        }
    }
}
