import QtQuick
import QtQuick.Layouts
import Loadwick

// What the one scan of the chosen repository measured, or why there is nothing to show.
Item {
    id: page

    required property OverviewPresenter overview
    // What a scan costs.
    required property string disclosure

    ScanEmptyState {
        anchors.fill: parent
        title: qsTr("Start a context scan")
        detail: qsTr("Choose a local repository, then run one Claude Code probe.")
        note: page.disclosure
        visible: page.overview.state === OverviewPresenter.Empty
    }
    ScanLoadingState {
        anchors.fill: parent
        visible: page.overview.state === OverviewPresenter.Loading

        PlainLabel {
            Layout.alignment: Qt.AlignHCenter
            Layout.topMargin: AppTheme.smallSpace
            text: page.overview.elapsed
            font: AppTheme.emphasisFont
        }
    }
    ScanFailureState {
        anchors.fill: parent
        headline: page.overview.headline
        detail: page.overview.detail
        visible: page.overview.state === OverviewPresenter.Failure
    }
    // Made anew for each report, so that each one arrives.
    Loader {
        id: report

        anchors.fill: parent
        active: page.overview.state === OverviewPresenter.Report
        Component.onCompleted: report.setSource("OverviewReport.qml", { overview: page.overview })
    }
}
