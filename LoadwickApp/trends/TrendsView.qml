import QtQuick
import QtQuick.Layouts
import Loadwick

// The recorded totals over time.
PageColumn {
    PageHeader {
        Layout.fillWidth: true
        title: "Trends"
        detail: "Startup context over time, against the Lean, Heavy and Excessive bands."
    }
    ReportSurface {
        Layout.fillWidth: true

        PlainLabel {
            Layout.fillWidth: true
            text: "Scans are recorded locally as you run them. Run one scan, then another, and the trend appears here."
            secondary: true
            wrapMode: Text.Wrap
        }
    }
}
