import QtQuick
import QtQuick.Layouts
import Loadwick

// Every drawing in its two sizes, on the grid that all share.
ReportSurface {
    GridLayout {
        Layout.fillWidth: true
        columns: 4
        columnSpacing: AppTheme.cardSpace
        rowSpacing: AppTheme.mediumSpace

        Repeater {
            model: ["square.grid.2x2", "chart.line.uptrend.xyaxis", "rectangle.split.2x1", "folder",
                "folder.fill", "waveform.path.ecg", "doc.on.doc", "trash", "circle",
                "arrow.triangle.2.circlepath", "exclamationmark.triangle", "exclamationmark.triangle.fill",
                "checkmark.circle.fill", "magnifyingglass", "arrow.up.right", "arrow.down.right",
                "equal", "scalemass", "chevron.right", "chevron.down", "gauge", "arrow.up"]

            RowLayout {
                id: row

                required property string modelData

                Layout.fillWidth: true
                Layout.preferredWidth: 1
                spacing: AppTheme.mediumSpace
                Symbol { name: row.modelData; tint: AppTheme.text }
                Symbol { name: row.modelData; tint: AppTheme.accent; implicitWidth: 28; implicitHeight: 28 }
                PlainLabel { Layout.fillWidth: true; text: row.modelData; font: AppTheme.captionFont; secondary: true; elide: Text.ElideRight }
            }
        }
    }
}
