import QtQuick
import QtQuick.Layouts
import Loadwick

// The few instruction files that weigh most.
ReportSurface {
    id: section

    required property LargestFilesPresenter largest
    required property Flickable viewport
    readonly property bool isEmpty: largest.rows.count === 0

    SectionHeader {
        Layout.fillWidth: true
        title: section.largest.title
        detail: section.largest.detail
    }
    PlainLabel {
        objectName: "empty"
        Layout.fillWidth: true
        text: section.largest.emptyText
        secondary: true
        wrapMode: Text.Wrap
        visible: section.isEmpty
    }
    ColumnLayout {
        Layout.fillWidth: true
        spacing: 0
        visible: !section.isEmpty

        LargestFileCells {
            objectName: "header"
            Layout.fillWidth: true
            Layout.preferredHeight: AppTheme.scaled(28)
            isHeader: true
            file: section.largest.fileHeader
            tokens: section.largest.tokensHeader
            share: section.largest.shareHeader
        }
        Hairline { Layout.fillWidth: true }
        LongList {
            objectName: "list"
            Layout.fillWidth: true
            rowHeight: AppTheme.tableRowHeight
            viewport: section.viewport
            model: section.largest.rows
            Accessible.name: section.largest.title
            onCopyRequested: index => section.largest.rows.copyPath(index)

            delegate: LargestFileCells {
                id: cells

                required property int index
                required property string path
                required property string words

                width: ListView.view.width
                height: AppTheme.tableRowHeight
                file: cells.path
                Accessible.role: Accessible.ListItem
                Accessible.name: cells.words
                Accessible.focusable: true
                // One that waits to be used again is not there.
                ListView.onPooled: cells.visible = false
                ListView.onReused: cells.visible = true

                Hairline {
                    width: parent.width
                    visible: cells.index > 0
                }
            }
        }
    }
}
