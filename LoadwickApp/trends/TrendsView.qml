import QtQuick
import QtQuick.Layouts
import Loadwick

// The recorded totals of one repository over time, and what is recorded at all.
PageColumn {
    id: page

    required property TrendsPresenter trends
    required property PageExport exporter

    Connections {
        target: page.trends

        // Another repository starts at the top.
        function onRepositoryChanged() { page.viewport.contentY = 0; }
    }
    PageHeader {
        Layout.fillWidth: true
        title: qsTr("Trends")
        detail: page.trends.detail
    }
    TrendChartCard {
        Layout.fillWidth: true
        chart: page.trends.chart
        changes: page.trends.changes
        exporter: page.exporter
        subject: page.trends.detail
    }
    TrendSummaryCard {
        Layout.fillWidth: true
        summary: page.trends.summary
        changes: page.trends.changes
        viewport: page.viewport
        visible: page.trends.summary.hasScans
    }
    PreviousRunsCard {
        Layout.fillWidth: true
        recordedData: page.trends.recordedData
        viewport: page.viewport
    }
    RecordedDataCard {
        Layout.fillWidth: true
        recordedData: page.trends.recordedData
    }
}
