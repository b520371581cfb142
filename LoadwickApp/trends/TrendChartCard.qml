import QtQuick
import QtQuick.Layouts
import Loadwick

// One repository's line of totals, or why there is none yet.
ReportSurface {
    id: card

    required property TrendChartPresenter chart
    // What the chart's points choose. Null: nothing.
    property ScanChangesPresenter changes: null
    // Null: nothing can be saved here.
    property PageExport exporter: null
    // The page's subject, for viewers of the picture alone.
    property string subject: ""
    readonly property bool isEmpty: card.chart.emptyText.length > 0

    // The page changes out of a screen reader's sight.
    function compare(point) {
        if (point < 0)
            return;
        card.changes.choosePoint(point);
        Announcer.announce(card.changes.sentence);
    }

    ColumnLayout {
        Layout.alignment: Qt.AlignHCenter
        Layout.maximumWidth: AppTheme.stateWidth
        Layout.topMargin: AppTheme.pageMargin
        Layout.bottomMargin: AppTheme.pageMargin
        spacing: AppTheme.smallSpace
        visible: card.isEmpty

        StateIcon {
            Layout.alignment: Qt.AlignHCenter
            Layout.bottomMargin: AppTheme.smallSpace
            symbol: "chart.line.uptrend.xyaxis"
            tint: AppTheme.secondaryText
        }
        TitleLabel {
            Layout.fillWidth: true
            text: card.chart.emptyTitle
            horizontalAlignment: Text.AlignHCenter
            visible: card.chart.emptyTitle.length > 0
        }
        PlainLabel {
            Layout.fillWidth: true
            text: card.chart.emptyText
            secondary: true
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
        }
    }
    SectionHeader {
        id: header

        Layout.fillWidth: true
        title: qsTr("Startup tokens per scan")
        detail: qsTr("Each point is one recorded scan; every total was reported by Claude.")
        visible: !card.isEmpty
    }
    TrendChart {
        id: plot

        objectName: "chart"
        Layout.fillWidth: true
        implicitHeight: 260
        visible: !card.isEmpty
        line: card.chart.line
        font: AppTheme.captionFont
        lineColor: AppTheme.chartColors[0]
        heavyColor: AppTheme.bandHeavy
        heavyNameColor: AppTheme.bandHeavyText
        excessiveColor: AppTheme.bandExcessive
        excessiveNameColor: AppTheme.bandExcessiveText
        gridColor: AppTheme.gridLine
        tickColor: AppTheme.separator
        textColor: AppTheme.text
        secondaryTextColor: AppTheme.secondaryText
        groundColor: AppTheme.surface
        Accessible.role: Accessible.Graphic
        Accessible.name: card.chart.summary
        Accessible.description: plot.currentMark < 0 ? caption.text + " " + qsTr("The arrow keys walk the scans; Enter compares one with an earlier one.") : plot.readout
        Accessible.focusable: true
        onWalked: Announcer.announce(plot.readout + "\n" + plot.markPosition)

        Keys.enabled: card.changes !== null
        Keys.onReturnPressed: card.compare(plot.currentMark)
        Keys.onEnterPressed: card.compare(plot.currentMark)

        TapHandler {
            enabled: card.changes !== null
            onTapped: point => card.compare(plot.markUnder(point.position))
        }
        HoverHandler { cursorShape: card.changes && plot.currentMark >= 0 ? Qt.PointingHandCursor : Qt.ArrowCursor }
        ComparedPoint {
            objectName: "earlierPoint"
            chart: plot
            point: card.changes ? card.changes.earlierPoint : -1
        }
        ComparedPoint {
            objectName: "laterPoint"
            chart: plot
            point: card.changes ? card.changes.laterPoint : -1
            isFilled: true
        }
        FocusRing { shown: plot.activeFocus }
    }
    PlainLabel {
        id: caption

        Layout.fillWidth: true
        text: qsTr("Hover the chart to read a single scan. Dashed lines mark the band thresholds.")
        font: AppTheme.captionFont
        secondary: true
        wrapMode: Text.Wrap
        visible: !card.isEmpty
    }
    PlainLabel {
        Layout.fillWidth: true
        text: qsTr("A click on a scan, or Enter, makes it the later one in \"What changed\" below.")
        font: AppTheme.captionFont
        secondary: true
        wrapMode: Text.Wrap
        visible: card.changes !== null && card.changes.laterPoint >= 0
    }
    ExportBar {
        Layout.fillWidth: true
        exporter: card.exporter
        chart: plot
        title: header.title
        lines: [card.subject, card.chart.period, header.detail]
        visible: card.exporter !== null && !card.isEmpty
    }
}
