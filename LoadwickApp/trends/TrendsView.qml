import QtQuick
import QtQuick.Layouts
import Loadwick

// The recorded totals of one repository over time, and what is recorded at all.
PageColumn {
    id: page

    required property TrendsPresenter trends
    required property PageExport exporter

    // The section that scrolls to the top of the page and then takes the focus; null for none.
    property ScanChangesSection wanted: null
    property real wantedTop: -1

    function goToChanges() {
        page.wanted = summary.changesSection;
        page.wantedTop = -1;
        page.Window.window.update();
    }

    // Until a page has been laid out, which takes some frames, its sections move.
    function follow() {
        const top = page.wanted.mapToItem(page.viewport.contentItem, 0, 0).y;
        const isThere = top === page.wantedTop;
        page.wantedTop = top;
        page.viewport.contentY = Math.max(0, Math.min(top - AppTheme.cardSpace, page.viewport.contentHeight - page.viewport.height));
        if (isThere) {
            page.wanted.takeFocus();
            page.wanted = null;
        }
        page.Window.window.update();
    }

    Connections {
        target: page.wanted ? page.Window.window : null

        function onFrameSwapped() { page.follow(); }
    }
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
        id: summary

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
