import QtQuick
import Loadwick

// The scan of the chosen repository is running; the elapsed time is below the state's own words.
Item {
    id: page

    required property OverviewPresenter overview

    Binding {
        target: page.overview
        property: "isTimeShown"
        value: page.Sight.isSeen
    }
    ScanLoadingState {
        id: state
        anchors.fill: parent
    }
    // A label would change its accessible name every second.
    Text {
        anchors.horizontalCenter: parent.horizontalCenter
        y: Math.round(state.groupEnd + AppTheme.cardSpace)
        text: page.overview.elapsed
        textFormat: Text.PlainText
        font: AppTheme.emphasisFont
        color: AppTheme.text
        Accessible.role: Accessible.StaticText
        Accessible.name: page.overview.elapsedWords
    }
}
