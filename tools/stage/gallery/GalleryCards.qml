import QtQuick
import QtQuick.Layouts
import Loadwick

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
}
