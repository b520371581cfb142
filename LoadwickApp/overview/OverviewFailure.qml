import QtQuick
import Loadwick

// The scan of the chosen repository has failed.
ScanFailureState {
    id: state

    required property OverviewPresenter overview

    headline: state.overview.headline
    detail: state.overview.detail
    platformNote: state.overview.platformNote
}
