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
    // No figure is wider than that of the longest bar.
    readonly property real valueWidth: Math.ceil(widest.advanceWidth)

    SectionHeader {
        id: header

        Layout.fillWidth: true
        title: qsTr("Category for category")
        detail: qsTr("Same categories, every recorded repository, on one axis. Totals are authoritative; the category splits are local estimates.")
    }
    BarList {
        objectName: "combined"
        Layout.fillWidth: true
        Accessible.name: qsTr("Category for category")
        model: card.compare.combined
        viewport: card.viewport
        rowHeight: AppTheme.combinedRowHeight
        delegate: CombinedRow { }
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
            model: card.compare.reading

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
        lines: [header.detail, card.compare.reading[0]]
    }

    CombinedPicture {
        id: picture

        visible: false
        width: 900
        rows: card.compare.combined
        font: AppTheme.captionFont
        strongFont: AppTheme.bodyStrongFont
        colors: AppTheme.chartColors
        textColor: AppTheme.text
        secondaryTextColor: AppTheme.secondaryText
    }
    TextMetrics {
        id: widest
        font: AppTheme.captionStrongFont
        text: card.compare.scaleEnd
    }
}
