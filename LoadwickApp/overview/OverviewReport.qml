import QtQuick
import QtQuick.Layouts
import Loadwick

// The report of one scan.
PageColumn {
    id: page

    required property OverviewPresenter overview
    required property PageExport exporter

    RowLayout {
        Layout.fillWidth: true
        spacing: AppTheme.cardSpace

        ColumnLayout {
            Layout.fillWidth: true
            spacing: AppTheme.smallSpace

            PageHeader {
                Layout.fillWidth: true
                title: qsTr("Overview")
                detail: qsTr("Everything this Claude Code startup-context scan measured.")
            }
            SelectableText {
                Layout.fillWidth: true
                text: page.overview.repositoryPath
                font: AppTheme.captionFont
                secondary: true
            }
        }
        StatusPill {
            Layout.alignment: Qt.AlignTop
            Layout.topMargin: AppTheme.smallSpace
            title: qsTr("Scan complete")
            symbol: "checkmark.circle.fill"
            tint: AppTheme.bandLeanText
        }
    }
    BandCard {
        Layout.fillWidth: true
        band: page.overview.band
        change: page.overview.latestChange
    }
    HealthScoreCard {
        Layout.fillWidth: true
        band: page.overview.band
    }
    BreakdownSection {
        Layout.fillWidth: true
        breakdown: page.overview.breakdown
        viewport: page.viewport
    }
    InstructionFilesSection {
        Layout.fillWidth: true
        files: page.overview.files
        viewport: page.viewport
    }
    LargestFilesSection {
        Layout.fillWidth: true
        rows: page.overview.files.largestRows
        opener: page.overview.files.opener
        viewport: page.viewport
    }
    WeeklyCard {
        Layout.fillWidth: true
        weekly: page.overview.weekly
    }
    ReportSection {
        Layout.fillWidth: true
        overview: page.overview
        exporter: page.exporter
    }
}
