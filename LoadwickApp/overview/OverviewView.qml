import QtQuick
import Loadwick

// The scan of the chosen repository, or why there is nothing to show.
Item {
    id: page

    required property OverviewPresenter overview
    // The cost of a scan.
    required property string disclosure
    required property PageExport exporter

    ScanEmptyState {
        anchors.fill: parent
        title: qsTr("Start a context scan")
        detail: qsTr("Choose a local repository, then run one Claude Code probe.")
        note: page.disclosure
        visible: page.overview.state === OverviewPresenter.Empty
    }
    // The others are created on demand. Every report is a new page, so that its arrival shows.
    Loader {
        id: loading

        anchors.fill: parent
        active: page.overview.state === OverviewPresenter.Loading
        Component.onCompleted: loading.setSource("OverviewLoading.qml", { overview: page.overview })
    }
    Loader {
        id: failure

        anchors.fill: parent
        active: page.overview.state === OverviewPresenter.Failure
        Component.onCompleted: failure.setSource("OverviewFailure.qml", { overview: page.overview })
    }
    Loader {
        id: report

        anchors.fill: parent
        active: page.overview.state === OverviewPresenter.Report
        Component.onCompleted: report.setSource("OverviewReport.qml", { overview: page.overview, exporter: page.exporter })
    }
}
