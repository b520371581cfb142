import QtQuick
import QtQuick.Layouts
import Loadwick

// What stands on the sidebar's ground: the pills, a path, all symbols.
ColumnLayout {
    id: sidebar

    spacing: AppTheme.cardSpace

    RowLayout {
        spacing: AppTheme.smallSpace
        Symbol { name: "folder.fill"; tint: AppTheme.accent }
        PlainLabel { text: "loadwick-sample"; font: AppTheme.emphasisFont; Layout.fillWidth: true; elide: Text.ElideMiddle }
    }
    SelectableText {
        Layout.fillWidth: true
        text: "/home/somebody/projects/clients/of-the-north/loadwick-sample/with/a/folder/deep/inside"
        font: AppTheme.captionFont
        secondary: true
        maximumLineCount: 2
        ground: AppTheme.sidebar
    }
    StatusPill { title: "Ready to scan"; symbol: "circle"; tint: AppTheme.secondaryText }
    StatusPill { title: "Scanning"; symbol: "arrow.triangle.2.circlepath"; tint: AppTheme.accent; turning: true }
    StatusPill { title: "Scan failed"; symbol: "exclamationmark.triangle.fill"; tint: AppTheme.bandExcessiveText }
    StatusPill { title: "Scan complete"; symbol: "checkmark.circle.fill"; tint: AppTheme.bandLeanText }
    StatusPill { title: "+1,234"; symbol: "arrow.up.right"; tint: AppTheme.bandHeavyText }
    StatusPill { title: "-80"; symbol: "arrow.down.right"; tint: AppTheme.bandLeanText }
    StatusPill { title: "±0"; symbol: "equal"; tint: AppTheme.secondaryText }
    ProvenancePill { label: "First scan" }
    Hairline { Layout.fillWidth: true }
    Repeater {
        model: ["square.grid.2x2", "chart.line.uptrend.xyaxis", "rectangle.split.2x1", "folder",
            "folder.fill", "circle", "arrow.triangle.2.circlepath", "exclamationmark.triangle",
            "exclamationmark.triangle.fill", "checkmark.circle.fill", "magnifyingglass",
            "waveform.path.ecg", "doc.on.doc", "arrow.up.right", "arrow.down.right", "equal",
            "trash", "scalemass", "chevron.right", "chevron.down"]

        RowLayout {
            id: row

            required property string modelData

            spacing: AppTheme.mediumSpace
            Symbol { name: row.modelData; tint: AppTheme.text }
            Symbol { name: row.modelData; tint: AppTheme.accent; implicitWidth: 28; implicitHeight: 28 }
            PlainLabel { text: row.modelData; font: AppTheme.captionFont; secondary: true }
        }
    }
    Item { Layout.fillHeight: true }
}
