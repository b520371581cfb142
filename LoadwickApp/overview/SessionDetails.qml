import QtQuick
import QtQuick.Layouts
import Loadwick

// Labels and values of one session, and below them what its figures mean.
ColumnLayout {
    id: details

    required property OverviewPresenter overview

    spacing: AppTheme.smallSpace

    Repeater {
        model: details.overview.sessionDetails

        RowLayout {
            id: row

            required property string label
            required property string value

            Layout.fillWidth: true
            spacing: AppTheme.smallSpace

            PlainLabel {
                Layout.preferredWidth: AppTheme.scaled(132)
                Layout.alignment: Qt.AlignTop
                text: row.label
                font: AppTheme.subheadlineStrongFont
            }
            SelectableText {
                Layout.fillWidth: true
                text: row.value
            }
        }
    }
    Repeater {
        model: details.overview.notes

        PlainLabel {
            id: note

            required property int index
            required property string modelData

            Layout.fillWidth: true
            Layout.topMargin: note.index === 0 ? AppTheme.smallSpace : 0
            text: note.modelData
            font: AppTheme.captionFont
            secondary: true
            wrapMode: Text.Wrap
        }
    }
}
