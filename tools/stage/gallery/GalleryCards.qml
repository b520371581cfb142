import QtQuick
import QtQuick.Layouts
import Loadwick

// Cards and sections, and the states of a page.
ColumnLayout {
    spacing: AppTheme.wideSpace

    RowLayout {
        Layout.fillWidth: true
        spacing: AppTheme.wideSpace

        ReportSurface {
            Layout.fillWidth: true
            Layout.preferredWidth: 1
            SectionHeader { Layout.fillWidth: true; title: "A card at rest"; detail: "Its border is faint, it casts no shadow." }
        }
        ReportSurface {
            Layout.fillWidth: true
            Layout.preferredWidth: 1
            isHovering: true
            SectionHeader { Layout.fillWidth: true; title: "A card under the pointer"; detail: "Its border is whole, its shadow soft." }
        }
    }
    ReportSurface {
        Layout.fillWidth: true
        SectionHeader { Layout.fillWidth: true; title: "A title without a detail" }
        Hairline { Layout.fillWidth: true }
        CollapsibleSection { Layout.fillWidth: true; title: "Collapsed" }
        Hairline { Layout.fillWidth: true }
        CollapsibleSection {
            Layout.fillWidth: true
            title: "Expanded"
            detail: "A factual, copyable summary of this one Claude Code startup-context scan."
            isExpanded: true
            SelectableText { Layout.fillWidth: true; text: "Startup context: 41,208 tokens (Heavy)\n<b>Plain</b> text stays plain.\nSession ID: 7d1f9c1e" }
        }
    }
    RowLayout {
        Layout.fillWidth: true
        Layout.preferredHeight: 320
        spacing: AppTheme.cardSpace

        ScanEmptyState {
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.preferredWidth: 100
            title: "Start a context scan"
            detail: "Choose a local repository, then run one Claude Code probe."
            note: "One scan starts one real session, which counts against your plan as any other does."
        }
        ScanLoadingState { Layout.fillWidth: true; Layout.fillHeight: true; Layout.preferredWidth: 100 }
    }
    RowLayout {
        Layout.fillWidth: true
        Layout.preferredHeight: 320
        spacing: AppTheme.cardSpace

        ScanFailureState {
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.preferredWidth: 100
            headline: "The session failed"
            detail: "It ended with status 1."
        }
        ScanFailureState {
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.preferredWidth: 100
            headline: "The answer could not be read"
            detail: "Expected one JSON object. ".repeat(24)
        }
    }
}
