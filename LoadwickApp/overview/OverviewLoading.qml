import QtQuick
import QtQuick.Layouts
import Loadwick

// The scan of the chosen repository is running; shows the elapsed time.
ScanLoadingState {
    id: state

    required property OverviewPresenter overview

    PlainLabel {
        Layout.alignment: Qt.AlignHCenter
        Layout.topMargin: AppTheme.smallSpace
        text: state.overview.elapsed
        font: AppTheme.emphasisFont
    }
}
