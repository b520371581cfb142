import QtQuick
import QtQuick.Layouts
import Loadwick

// Takes what a card shows along as files, and says how that went.
RowLayout {
    id: bar

    required property PageExport exporter
    required property PaintedItem chart
    // What the picture says above the chart.
    required property string title
    required property list<string> lines

    spacing: AppTheme.mediumSpace

    PlainLabel {
        Layout.fillWidth: true
        text: bar.exporter ? bar.exporter.outcome : ""
        font: AppTheme.captionFont
        color: bar.exporter && bar.exporter.failed ? AppTheme.bandExcessiveText : AppTheme.secondaryText
        wrapMode: Text.Wrap
    }
    PushButton {
        title: qsTr("Save Data…")
        outlined: true
        onClicked: bar.exporter.saveTable()
    }
    PushButton {
        title: qsTr("Save Chart…")
        outlined: true
        onClicked: bar.exporter.saveChart(bar.chart, frame)
    }

    PictureFrame {
        id: frame

        title: bar.title
        lines: bar.lines
        titleFont: AppTheme.headlineFont
        font: AppTheme.subheadlineFont
        textColor: AppTheme.text
        secondaryTextColor: AppTheme.secondaryText
        ground: AppTheme.surface
    }
}
