import QtQuick
import QtQuick.Layouts
import Loadwick

// All repositories, heaviest first.
ReportSurface {
    id: card

    required property RowList rows
    required property Flickable viewport

    SectionHeader {
        Layout.fillWidth: true
        title: qsTr("Leaderboard")
        detail: qsTr("Every scanned repository, ranked by its latest recorded total — heaviest first. The trend compares each repository's two most recent scans.")
    }
    LongList {
        objectName: "leaderboard"
        Layout.fillWidth: true
        Accessible.name: qsTr("Leaderboard")
        model: card.rows
        viewport: card.viewport
        rowHeight: AppTheme.listRowHeight
        onCopyRequested: index => card.rows.copy(index, "sentence")
        delegate: LeaderboardRow { }
    }
}
