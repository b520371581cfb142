import QtQuick
import QtQuick.Layouts
import Loadwick

// Exports a card's content to files, and reports the outcome.
RowLayout {
    id: bar

    required property PageExport exporter
    required property PainterItem chart
    // The words above the chart in its picture.
    required property string title
    required property list<string> lines

    spacing: AppTheme.mediumSpace

    SaveOutcome {
        Layout.fillWidth: true
        exporter: bar.exporter
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
