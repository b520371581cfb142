import QtQuick
import QtQuick.Layouts
import Loadwick
import LoadwickGallery

// Figures, the items that draw them, and totals in every band as meter and as score.
ColumnLayout {
    component Metered: ReportSurface {
        id: card

        required property BandPresenter band

        Layout.fillWidth: true
        Layout.preferredWidth: 1

        RowLayout {
            Layout.fillWidth: true
            spacing: AppTheme.pageMargin

            ScoreGauge { band: card.band }
            BandMeter { Layout.fillWidth: true; band: card.band }
        }
    }

    spacing: AppTheme.cardSpace

    RowLayout {
        Layout.fillWidth: true
        spacing: AppTheme.cardSpace

        ReportSurface {
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.preferredWidth: 1

            SideBySide {
                Layout.fillWidth: true
                MetricTile { Layout.fillWidth: true; title: "Latest scan"; value: "64,512"; caption: "over 60,000" }
                MetricTile { Layout.fillWidth: true; title: "Band"; value: "Excessive"; caption: "over 60,000"; tint: AppTheme.bandExcessiveText }
            }
            Hairline { Layout.fillWidth: true }
            ElidedPath {
                Layout.fillWidth: true
                text: "/home/somebody/projects/clients/of-the-north/loadwick-sample/with/a/folder/deep/inside/CLAUDE.md"
            }
            StatusPill { title: "Illustrative score — not a measurement"; symbol: ""; tint: AppTheme.bandHeavyText; font: AppTheme.captionStrongFont }
        }
        ReportSurface {
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.preferredWidth: 1

            Repeater {
                model: [1, 0.62, 0.31, 0.004, 0]
                BarRow {
                    required property real modelData
                    required property int index
                    Layout.fillWidth: true
                    implicitHeight: AppTheme.barRowHeight
                    style: ThemedBarStyle { }
                    name: "Category " + index
                    value: Math.round(24902 * modelData)
                    length: modelData
                    fill: AppTheme.chartColors[index % AppTheme.chartColors.length]
                }
            }
            ScaleEnds { Layout.fillWidth: true; start: "0"; end: "24,902" }
        }
    }
    ReportSurface {
        Layout.fillWidth: true

        RowLayout {
            Layout.fillWidth: true
            spacing: AppTheme.wideSpace

            Repeater {
                model: [0, 47, 100]
                GaugeArc {
                    required property real modelData
                    required property int index
                    Layout.preferredWidth: 96
                    Layout.preferredHeight: 96
                    value: modelData
                    tint: AppTheme.bandShapes[2 - index]
                    track: AppTheme.quietFill
                }
            }
            DonutChart {
                Layout.preferredWidth: 160
                Layout.preferredHeight: 160
                tokens: [16851, 7901, 4102, 3318, 1659, 1266, 480]
                colors: AppTheme.chartColors
            }
            ReadOut {
                Layout.fillWidth: true
                hint: "Hover a segment for its share."
                title: "System tools"
                detail: "16,851 tokens · 47.4%"
                swatch: AppTheme.chartColors[0]
            }
            ReadOut {
                Layout.fillWidth: true
                hint: "Hover a segment for its share."
                title: ""
                detail: ""
            }
        }
    }
    GridLayout {
        columns: 2
        columnSpacing: AppTheme.cardSpace
        rowSpacing: AppTheme.cardSpace

        Metered { band: GallerySamples.zero }
        Metered { band: GallerySamples.lean }
        Metered { band: GallerySamples.heavy }
        Metered { band: GallerySamples.excessive }
    }
}
