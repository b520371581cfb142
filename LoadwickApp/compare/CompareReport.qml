import QtQuick
import QtQuick.Layouts
import Loadwick

// Two repositories or more: the leaderboard, a card for each, and all on one axis.
PageColumn {
    id: page

    required property ComparePresenter compare
    required property PageExport exporter

    CompareHeader { Layout.fillWidth: true }
    Leaderboard {
        Layout.fillWidth: true
        rows: page.compare.leaderboard
        viewport: page.viewport
    }
    ColumnGrid {
        Layout.fillWidth: true
        compare: page.compare
        viewport: page.viewport
    }
    CombinedCard {
        Layout.fillWidth: true
        compare: page.compare
        exporter: page.exporter
        viewport: page.viewport
    }
}
