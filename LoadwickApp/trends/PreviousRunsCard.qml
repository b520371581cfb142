import QtQuick
import QtQuick.Layouts
import Loadwick

// The newest recorded scans of all repositories.
ReportSurface {
    id: card

    required property RecordedDataPresenter recordedData
    required property Flickable viewport

    SectionHeader {
        Layout.fillWidth: true
        title: qsTr("Previous runs")
        detail: card.recordedData.runsDetail
    }
    LongList {
        objectName: "runs"
        Layout.fillWidth: true
        model: card.recordedData.runs
        viewport: card.viewport
        rowHeight: AppTheme.listRowHeight
        visible: count > 0
        Accessible.name: qsTr("Previous runs")
        onCopyRequested: index => card.recordedData.runs.copy(index, "sentence")
        delegate: HistoryRow {
            id: row

            required valueCaption
            required path
            required sentence
            required property int band

            width: ListView.view ? ListView.view.width : 0
            height: AppTheme.listRowHeight
            valueTint: AppTheme.bandTexts[row.band]
        }
    }
    PlainLabel {
        Layout.fillWidth: true
        text: qsTr("Session totals were reported by Claude; category splits are local estimates.")
        font: AppTheme.captionFont
        secondary: true
        wrapMode: Text.Wrap
    }
}
