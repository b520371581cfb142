import QtQuick
import QtQuick.Layouts
import Loadwick
import LoadwickGallery

// Rows, and long lists: one at rest, one in which a row is marked from outside.
ColumnLayout {
    id: rows

    // The item that scrolls the gallery.
    required property Flickable viewport

    spacing: AppTheme.cardSpace

    component Ranked: ReportSurface {
        id: card

        required property Flickable viewport
        property alias markedIndex: list.markedIndex

        Layout.fillWidth: true
        Layout.preferredWidth: 1

        LongList {
            id: list

            Layout.fillWidth: true
            model: GallerySamples.leaderboard
            viewport: card.viewport
            rowHeight: AppTheme.listRowHeight
            delegate: LeaderboardRow { }
        }
    }

    RowLayout {
        spacing: AppTheme.cardSpace

        ReportSurface {
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.preferredWidth: 1
            spacing: 0

            SectionHeader {
                Layout.fillWidth: true
                Layout.bottomMargin: AppTheme.smallSpace
                title: "Ranked, with tint, caption and trend"
            }
            HistoryRow {
                Layout.fillWidth: true
                rank: 1; title: "paper-boats"; detail: "5 scans"
                value: "1,064,512"; valueTint: AppTheme.bandExcessiveText; valueCaption: "Excessive"
                accessoryWidth: AppTheme.trendWidth
                TrendPill { kind: TrendKind.Shrank; title: "-27,806"; symbol: "arrow.down.right" }
            }
            HistoryRow {
                Layout.fillWidth: true
                rank: 2; title: "a-repository-whose-name-goes-on-and-on-until-nobody-reads-it"; detail: "12 scans"
                value: "46,902"; valueTint: AppTheme.bandHeavyText; valueCaption: "Heavy"
                accessoryWidth: AppTheme.trendWidth
                TrendPill { kind: TrendKind.Grew; title: "+1,234"; symbol: "arrow.up.right" }
            }
            HistoryRow {
                Layout.fillWidth: true
                rank: 128; title: "tide-tables"; detail: "1 scan"
                value: "3"; valueTint: AppTheme.bandLeanText; valueCaption: "Lean"
                accessoryWidth: AppTheme.trendWidth
                TrendPill { kind: TrendKind.FirstScan; title: "First scan"; symbol: "" }
            }
        }
        ReportSurface {
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.preferredWidth: 1
            spacing: 0

            SectionHeader {
                Layout.fillWidth: true
                Layout.bottomMargin: AppTheme.smallSpace
                title: "Without rank, tint, caption and trend"
            }
            HistoryRow { Layout.fillWidth: true; title: "harbor-api"; detail: "Mar 4, 2026"; value: "43,655" }
            HistoryRow { Layout.fillWidth: true; title: "field-notes"; detail: "Mar 1, 2026"; value: "111,981" }
            HistoryRow { Layout.fillWidth: true; title: "tide-tables"; detail: "Feb 28, 2026"; value: "28,733"; valueCaption: "No category estimates" }
        }
    }

    RowLayout {
        spacing: AppTheme.cardSpace

        Ranked { viewport: rows.viewport }
        Ranked { viewport: rows.viewport; markedIndex: 2 }
    }
}
