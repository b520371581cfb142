import QtQuick
import Loadwick

// One repository of the leaderboard.
HistoryRow {
    id: row

    required rank
    required path
    required sentence
    required property int band
    required property string bandTitle
    required property int trendKind
    required property string trendTitle
    required property string trendSymbol

    width: row.ListView.view ? row.ListView.view.width : 0
    height: AppTheme.listRowHeight
    valueTint: AppTheme.bandTexts[row.band]
    valueCaption: row.bandTitle
    accessoryWidth: AppTheme.trendWidth

    TrendPill {
        kind: row.trendKind
        title: row.trendTitle
        symbol: row.trendSymbol
    }
}
