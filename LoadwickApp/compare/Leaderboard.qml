import QtQuick
import QtQuick.Layouts
import Loadwick

// All repositories, the heaviest first.
ReportSurface {
    id: card

    required property RowList rows
    required property Flickable viewport

    // One repository.
    component Entry: HistoryRow {
        id: row

        required property int index
        required place
        required property int band
        required property string bandTitle
        required property int trendKind
        required property string trendTitle
        required property string trendSymbol

        width: ListView.view ? ListView.view.width : 0
        height: AppTheme.listRowHeight
        rank: row.index + 1
        valueTint: AppTheme.bandTexts[row.band]
        valueCaption: row.bandTitle
        accessoryWidth: AppTheme.trendWidth

        TrendPill {
            kind: row.trendKind
            title: row.trendTitle
            symbol: row.trendSymbol
        }
    }

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
        delegate: Entry { }
    }
}
