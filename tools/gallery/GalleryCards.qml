import QtQuick
import QtQuick.Layouts
import Loadwick

ColumnLayout {
    spacing: AppTheme.cardSpace

    ReportSurface {
        Layout.fillWidth: true
        PlainLabel { text: "Heavy startup context"; font: AppTheme.title2Font; color: AppTheme.bandHeavyText }
        RowLayout {
            spacing: AppTheme.smallSpace
            PlainLabel { text: "41,208"; font: AppTheme.heroMetricFont; Layout.alignment: Qt.AlignBaseline }
            PlainLabel { text: "tokens"; font: AppTheme.title3Font; secondary: true; Layout.alignment: Qt.AlignBaseline }
        }
        PlainLabel { text: "Authoritative · measured by Claude"; font: AppTheme.subheadlineFont; secondary: true }
        Row {
            spacing: AppTheme.smallSpace
            Repeater {
                model: [AppTheme.bandLean, AppTheme.bandHeavy, AppTheme.bandExcessive, ...AppTheme.chartColors]
                Rectangle {
                    required property color modelData
                    width: 44; height: AppTheme.cardSpace; radius: 4; color: modelData
                }
            }
        }
    }
    ReportSurface {
        Layout.fillWidth: true
        SectionHeader { Layout.fillWidth: true; title: "Weekly usage"; detail: "Supporting context from the local weekly KPI log." }
        Hairline { Layout.fillWidth: true }
        CollapsibleSection { Layout.fillWidth: true; title: "Session details" }
        Hairline { Layout.fillWidth: true }
        CollapsibleSection {
            Layout.fillWidth: true
            title: "Full report"
            detail: "A factual, copyable summary of this one Claude Code startup-context scan."
            isExpanded: true
            SelectableText { Layout.fillWidth: true; text: "Startup context: 41,208 tokens (Heavy)\n<b>Plain</b> text stays plain.\nSession ID: 7d1f9c1e" }
        }
    }
}
