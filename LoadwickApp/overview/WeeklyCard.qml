import QtQuick
import QtQuick.Layouts
import Loadwick

// The user's own weekly log, beside the scan and never mixed with its figures.
ReportSurface {
    id: card

    required property WeeklyPresenter weekly

    SectionHeader {
        Layout.fillWidth: true
        title: qsTr("Weekly usage")
        detail: qsTr("Supporting context from the local weekly KPI log.")
    }
    PlainLabel {
        Layout.fillWidth: true
        text: qsTr("No weekly KPI line is available locally.")
        secondary: true
        wrapMode: Text.Wrap
        visible: !card.weekly.hasLine
    }
    SideBySide {
        Layout.fillWidth: true
        visible: card.weekly.hasLine

        MetricTile {
            Layout.fillWidth: true
            title: qsTr("Median tokens/session")
            value: card.weekly.median
            caption: card.weekly.medianCaption
        }
        MetricTile {
            Layout.fillWidth: true
            title: qsTr("Tokens/PR")
            value: card.weekly.tokensPerPR
            caption: card.weekly.tokensPerPRCaption
        }
    }
    ColumnLayout {
        Layout.fillWidth: true
        spacing: AppTheme.tightSpace
        visible: card.weekly.hasLine

        Repeater {
            model: [card.weekly.window, card.weekly.recorded, card.weekly.targets]

            PlainLabel {
                id: line

                required property string modelData

                Layout.fillWidth: true
                text: line.modelData
                font: AppTheme.captionFont
                secondary: true
                wrapMode: Text.Wrap
            }
        }
    }
}
