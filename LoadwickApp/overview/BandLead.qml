import QtQuick
import QtQuick.Layouts
import Loadwick

// The band in one word, and why.
ColumnLayout {
    id: lead

    required property OverviewPresenter overview
    readonly property color bandColor: {
        switch (lead.overview.band) {
        case OverviewPresenter.Heavy: return AppTheme.bandHeavyText;
        case OverviewPresenter.Excessive: return AppTheme.bandExcessiveText;
        default: return AppTheme.bandLeanText;
        }
    }

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
            text: lead.overview.bandTitle
            font: AppTheme.title2Font
            color: lead.bandColor
            wrapMode: Text.Wrap
        }
    }
    PlainLabel {
        Layout.fillWidth: true
        text: lead.overview.bandSentence
        wrapMode: Text.Wrap
    }
}
