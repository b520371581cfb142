import QtQuick
import QtQuick.Layouts
import Loadwick

// The number that everything else is about, and who measured it.
ColumnLayout {
    id: metric

    required property BandPresenter band

    spacing: 0

    RowLayout {
        spacing: AppTheme.smallSpace

        PlainLabel {
            Layout.alignment: Qt.AlignBaseline
            text: metric.band.total
            font: AppTheme.heroMetricFont
        }
        PlainLabel {
            Layout.alignment: Qt.AlignBaseline
            text: qsTr("tokens")
            font: AppTheme.title3Font
            secondary: true
        }
    }
    PlainLabel {
        text: qsTr("Authoritative · measured by Claude")
        font: AppTheme.subheadlineFont
        secondary: true
    }
}
