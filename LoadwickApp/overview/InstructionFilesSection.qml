import QtQuick
import QtQuick.Layouts
import Loadwick

// All instruction files that a session loads: how they compare, and each tier as a list.
ReportSurface {
    id: section

    required property InstructionFilesPresenter files
    required property Flickable viewport

    // The files of one tier, one row each.
    component Tier: ColumnLayout {
        id: tier

        required property string title
        required property RowList rows
        required property Flickable viewport
        required property bool hasImports
        required property FileOpener opener

        Layout.fillWidth: true
        spacing: AppTheme.tightSpace

        TitleLabel {
            Layout.fillWidth: true
            text: tier.title
            font: AppTheme.emphasisFont
        }
        LongList {
            id: list

            objectName: "list"
            Layout.fillWidth: true
            // A line more where the words below a path wrap, and one for the importers.
            rowHeight: AppTheme.scaled((tier.width < AppTheme.scaled(480) ? 70 : 52) + (tier.hasImports ? 20 : 0))
            viewport: tier.viewport
            model: tier.rows
            visible: tier.rows.count > 0
            Accessible.name: tier.title
            Keys.forwardTo: [actions]
            onCopyRequested: index => tier.rows.copy(index, "path")
            onOpenRequested: index => actions.openFile(index)
            onMenuRequested: index => actions.openMenu(index)

            delegate: InstructionFileRow {
                width: ListView.view.width
                height: (ListView.view as LongListRows).rowHeight
            }

            FileActions {
                id: actions

                anchors.fill: parent
                opener: tier.opener
                rows: tier.rows
                rowAtPoint: Math.floor(actions.point.y / list.rowHeight)
                currentRow: list.currentIndex
                corner: Qt.point(0, (actions.row + 1) * list.rowHeight)
                // Between the words and the figures.
                noteCorner: Qt.point(actions.width / 2, actions.corner.y)
            }
        }
        PlainLabel {
            objectName: "empty"
            Layout.fillWidth: true
            text: qsTr("No files found in this tier.")
            secondary: true
            visible: tier.rows.count === 0
        }
    }

    spacing: AppTheme.cardSpace

    SectionHeader {
        Layout.fillWidth: true
        title: qsTr("All instruction files")
        detail: qsTr("Grouped by where Claude Code loads them. Their contents are never displayed or persisted.")
    }
    PlainLabel {
        objectName: "note"
        Layout.fillWidth: true
        text: section.files.note
        secondary: true
        wrapMode: Text.Wrap
        visible: section.files.note.length > 0
    }
    RelativeSizes {
        Layout.fillWidth: true
        files: section.files
        viewport: section.viewport
        room: section.width - 2 * AppTheme.cardPadding
    }
    Tier {
        title: qsTr("Repository instructions")
        rows: section.files.repositoryRows
        hasImports: section.files.hasImports
        opener: section.files.opener
        viewport: section.viewport
    }
    Tier {
        title: qsTr("Inherited project instructions")
        rows: section.files.inheritedRows
        hasImports: section.files.hasImports
        opener: section.files.opener
        viewport: section.viewport
    }
    Tier {
        title: qsTr("Personal instructions")
        rows: section.files.personalRows
        hasImports: section.files.hasImports
        opener: section.files.opener
        viewport: section.viewport
    }
    PlainLabel {
        Layout.fillWidth: true
        text: qsTr("Share is calculated against the authoritative total reported by Claude.")
        font: AppTheme.captionFont
        secondary: true
        wrapMode: Text.Wrap
    }
}
