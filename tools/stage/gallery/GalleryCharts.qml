import QtQuick
import QtQuick.Layouts
import Loadwick
import LoadwickGallery

// The charts that can be pointed at; the gallery points at those named "pointed".
ColumnLayout {
    id: charts

    required property Flickable viewport

    component Donut: DonutChart {
        Layout.preferredWidth: 160
        Layout.preferredHeight: 160
        tokens: [16851, 7901, 4102, 3318, 1659, 1266, 480]
        colors: AppTheme.chartColors
    }

    spacing: AppTheme.cardSpace

    RowLayout {
        Layout.fillWidth: true
        spacing: AppTheme.cardSpace

        TrendChartCard { Layout.fillWidth: true; Layout.preferredWidth: 1; chart: GallerySamples.manyScans }
        TrendChartCard { objectName: "pointed"; Layout.fillWidth: true; Layout.preferredWidth: 1; chart: GallerySamples.manyScans }
    }
    RowLayout {
        Layout.fillWidth: true
        spacing: AppTheme.cardSpace

        TrendChartCard { Layout.fillWidth: true; Layout.fillHeight: true; Layout.preferredWidth: 1; chart: GallerySamples.twoScans }
        TrendChartCard { Layout.fillWidth: true; Layout.fillHeight: true; Layout.preferredWidth: 1; chart: GallerySamples.oneScan }
    }
    ReportSurface {
        id: tiles

        Layout.fillWidth: true
        RelativeSizes { Layout.fillWidth: true; files: GallerySamples.files; viewport: charts.viewport; room: tiles.width - 2 * AppTheme.cardPadding }
    }
    ReportSurface {
        id: pointedTiles

        objectName: "pointed"
        Layout.fillWidth: true
        RelativeSizes { Layout.fillWidth: true; files: GallerySamples.files; viewport: charts.viewport; room: pointedTiles.width - 2 * AppTheme.cardPadding }
        Hairline { Layout.fillWidth: true }
        RelativeSizes { Layout.fillWidth: true; files: GallerySamples.noFiles; viewport: charts.viewport; room: pointedTiles.width - 2 * AppTheme.cardPadding }
    }
    ReportSurface {
        Layout.fillWidth: true

        RowLayout {
            spacing: AppTheme.wideSpace

            Donut { }
            Donut { objectName: "pointed" }
            Donut {
                id: focused
                FocusRing { shown: true; controlRadius: focused.width / 2 }
            }
        }
    }
}
