import QtQuick
import QtQuick.Layouts
import Loadwick

// Every instruction file that a session loads: how they compare, and each tier as a list.
ReportSurface {
    id: section

    required property InstructionFilesPresenter files
    required property Flickable viewport

    spacing: AppTheme.cardSpace

    SectionHeader {
        Layout.fillWidth: true
        title: section.files.title
        detail: section.files.detail
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
        room: section.width - 2 * AppTheme.cardPadding
    }
    InstructionTier {
        Layout.fillWidth: true
        title: section.files.repositoryTitle
        rows: section.files.repositoryRows
        emptyText: section.files.emptyTierText
        viewport: section.viewport
    }
    InstructionTier {
        Layout.fillWidth: true
        title: section.files.inheritedTitle
        rows: section.files.inheritedRows
        emptyText: section.files.emptyTierText
        viewport: section.viewport
    }
    InstructionTier {
        Layout.fillWidth: true
        title: section.files.personalTitle
        rows: section.files.personalRows
        emptyText: section.files.emptyTierText
        viewport: section.viewport
    }
    PlainLabel {
        Layout.fillWidth: true
        text: section.files.shareCaption
        font: AppTheme.captionFont
        secondary: true
        wrapMode: Text.Wrap
    }
}
