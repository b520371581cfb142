import QtQuick
import QtQuick.Layouts
import Loadwick

ColumnLayout {
    spacing: AppTheme.cardSpace

    GalleryGroup {
        title: "Status"
        StatusPill { title: "Ready to scan"; symbol: "circle"; tint: AppTheme.secondaryText }
        StatusPill { title: "Scanning"; symbol: "arrow.triangle.2.circlepath"; tint: AppTheme.accent; turning: true }
        StatusPill { title: "Scan failed"; symbol: "exclamationmark.triangle.fill"; tint: AppTheme.bandExcessiveText }
        StatusPill { title: "Scan complete"; symbol: "checkmark.circle.fill"; tint: AppTheme.bandLeanText }
    }
    GalleryGroup {
        title: "Trend and provenance"
        TrendPill { kind: TrendKind.Grew; title: "+1,234"; symbol: "arrow.up.right" }
        TrendPill { kind: TrendKind.Shrank; title: "-80"; symbol: "arrow.down.right" }
        TrendPill { kind: TrendKind.Unchanged; title: "±0"; symbol: "equal" }
        TrendPill { kind: TrendKind.FirstScan; title: "First scan"; symbol: "" }
        ProvenancePill { label: "Estimate" }
    }
    GalleryGroup {
        title: "State icons"
        StateIcon { symbol: "magnifyingglass"; tint: AppTheme.secondaryText }
        StateIcon { symbol: "arrow.triangle.2.circlepath"; tint: AppTheme.accent; turning: true }
        StateIcon { symbol: "exclamationmark.triangle"; tint: AppTheme.bandExcessive }
        StateIcon { symbol: "gauge"; tint: AppTheme.accent }
    }
    GalleryGroup {
        title: "A path on the sidebar's ground, cut short after two lines"
        Rectangle {
            width: 250; height: 64; radius: AppTheme.controlRadius; color: AppTheme.sidebar

            SelectableText {
                anchors { left: parent.left; right: parent.right; verticalCenter: parent.verticalCenter; margins: AppTheme.cardSpace }
                text: "/home/somebody/projects/clients/of-the-north/loadwick-sample/with/a/folder/deep/inside"
                font: AppTheme.captionFont
                secondary: true
                maximumLineCount: 2
            }
        }
    }
}
