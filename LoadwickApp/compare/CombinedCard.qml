import QtQuick
import QtQuick.Layouts
import Loadwick

// The categories of all repositories on one axis, one bar per repository within each.
ReportSurface {
    id: card

    required property ComparePresenter compare
    required property PageExport exporter
    required property Flickable viewport
    readonly property real nameWidth: Math.round(Math.min(AppTheme.scaled(200), 0.28 * card.width))
    // The widest figure is that of the longest bar.
    readonly property real valueWidth: Math.ceil(widest.advanceWidth)
    readonly property list<string> reading: [
        qsTr("One bar is one category of one repository's latest recorded scan. Its length is the category's tokens; all bars share one scale."),
        qsTr("The categories stand heaviest first, by their tokens in all repositories together. Within each, the repositories keep one order and one colour; after five, the colours start again."),
        qsTr("A missing bar, with a dash for its figure, means that the category was not recorded for that repository. A category recorded with no tokens says 0."),
        qsTr("Totals are authoritative, as reported by Claude. The category splits are local estimates.")
    ]

    // A category's name, or a repository's bar within the category.
    component Line: BarRow {
        id: row

        required property bool isCategory
        required property string title
        required path
        required property int column
        required value
        required length
        required isRecorded
        required property string spoken
        readonly property BarList bars: row.ListView.view ? row.ListView.view.parent as BarList : null

        objectName: row.isCategory ? "category" : "bar"
        width: row.bars ? row.bars.width : 0
        height: row.bars ? row.bars.rowHeight : 0
        arrangement: row.isCategory ? BarRow.Heading : BarRow.InLine
        name: row.title
        style: row.bars ? row.bars.style : null
        fill: AppTheme.chartColors[Math.max(0, row.column) % AppTheme.chartColors.length]
        Accessible.role: Accessible.ListItem
        Accessible.name: row.spoken
        Accessible.description: row.path
        // Hidden while pooled.
        ListView.onPooled: row.visible = false
        ListView.onReused: { row.visible = true; row.Accessible.ignored = false; }
    }

    SectionHeader {
        id: header

        Layout.fillWidth: true
        title: qsTr("Category for category")
        detail: qsTr("Same categories, every recorded repository, on one axis. Totals are authoritative; the category splits are local estimates.")
    }
    BarList {
        id: bars

        objectName: "combined"
        Layout.fillWidth: true
        Accessible.name: qsTr("Category for category")
        model: card.compare.combined
        viewport: card.viewport
        rowHeight: AppTheme.combinedRowHeight
        onCopyRequested: index => card.compare.combined.copy(index, "spoken")
        delegate: Line { }
        style: ThemedBarStyle {
            nameWidth: card.nameWidth
            valueWidth: card.valueWidth
            isMirrored: card.LayoutMirroring.enabled
        }
    }
    PlainLabel {
        text: qsTr("No category estimates")
        secondary: true
        visible: card.compare.categoryCount === 0
    }
    ScaleEnds {
        Layout.fillWidth: true
        Layout.leftMargin: card.nameWidth + AppTheme.mediumSpace
        Layout.rightMargin: card.valueWidth + AppTheme.mediumSpace
        start: card.compare.scaleStart
        end: card.compare.scaleEnd
        visible: card.compare.categoryCount > 0
    }
    Hairline { Layout.fillWidth: true }
    CollapsibleSection {
        Layout.fillWidth: true
        title: qsTr("How to read this")

        Repeater {
            model: card.reading

            PlainLabel {
                required property string modelData

                Layout.fillWidth: true
                text: modelData
                wrapMode: Text.Wrap
            }
        }
    }

    Hairline { Layout.fillWidth: true }
    ExportBar {
        Layout.fillWidth: true
        exporter: card.exporter
        chart: picture
        title: header.title
        lines: [header.detail, card.reading[0]]
    }

    CombinedPicture {
        id: picture

        visible: false
        width: 900
        rows: card.compare.combined
        style: ThemedBarStyle {
            nameWidth: 200
            valueWidth: 88
        }
        colors: AppTheme.chartColors
    }
    TextMetrics {
        id: widest
        font: AppTheme.captionStrongFont
        text: card.compare.scaleEnd
    }
}
