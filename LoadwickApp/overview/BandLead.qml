import QtQuick
import QtQuick.Layouts
import Loadwick

// The band in one word, and why.
ColumnLayout {
    id: lead

    required property BandPresenter band
    readonly property color bandColor: AppTheme.bandTexts[lead.band.band]

    spacing: AppTheme.smallSpace

    RowLayout {
        Layout.fillWidth: true
        spacing: AppTheme.smallSpace

        Symbol {
            Layout.preferredWidth: 20
            Layout.preferredHeight: 20
            name: "scalemass"
            tint: lead.bandColor
        }
        PlainLabel {
            Layout.fillWidth: true
            text: lead.band.title
            font: AppTheme.title2Font
            color: lead.bandColor
            wrapMode: Text.Wrap
        }
    }
    PlainLabel {
        Layout.fillWidth: true
        text: lead.band.sentence
        wrapMode: Text.Wrap
    }
}
