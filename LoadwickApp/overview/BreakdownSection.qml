import QtQuick
import QtQuick.Layouts
import Loadwick

// Where the total goes, category by category, and how far each figure can be trusted.
ReportSurface {
    id: section

    required property BreakdownPresenter breakdown
    required property Flickable viewport

    SectionHeader {
        Layout.fillWidth: true
        title: qsTr("Estimated breakdown by category")
        detail: qsTr("Shares use the Claude-reported total; category rows are estimates.")
    }
    RowLayout {
        objectName: "unreported"
        Layout.fillWidth: true
        spacing: AppTheme.smallSpace
        visible: !section.breakdown.selfReported

        Symbol {
            Layout.alignment: Qt.AlignTop
            Layout.topMargin: 1
            name: "exclamationmark.triangle.fill"
            tint: AppTheme.bandHeavyText
        }
        ColumnLayout {
            Layout.fillWidth: true
            spacing: 2

            PlainLabel {
                Layout.fillWidth: true
                text: qsTr("This session did not report category rows.")
                font: AppTheme.bodyStrongFont
                wrapMode: Text.Wrap
            }
            PlainLabel {
                Layout.fillWidth: true
                text: qsTr("Claude did not self-report categories for this session. The total and band remain factual; instruction files are listed separately as local estimates.")
                secondary: true
                wrapMode: Text.Wrap
            }
        }
    }
    BreakdownChart {
        id: chart

        Layout.fillWidth: true
        Layout.topMargin: AppTheme.tightSpace
        Layout.bottomMargin: AppTheme.mediumSpace
        breakdown: section.breakdown
        visible: section.breakdown.hasSlices
    }
    PlainLabel {
        objectName: "noSlices"
        Layout.fillWidth: true
        text: qsTr("The attributed category rows report no tokens to chart.")
        secondary: true
        wrapMode: Text.Wrap
        visible: !section.breakdown.hasSlices
    }
    BreakdownTable {
        Layout.fillWidth: true
        breakdown: section.breakdown
        viewport: section.viewport
        markedRow: chart.currentRow
    }
    Repeater {
        model: section.breakdown.notes

        PlainLabel {
            id: note

            required property string modelData

            Layout.fillWidth: true
            text: note.modelData
            secondary: true
            wrapMode: Text.Wrap
        }
    }
}
