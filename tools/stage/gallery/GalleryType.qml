import QtQuick
import QtQuick.Layouts
import Loadwick

RowLayout {
    id: type

    spacing: AppTheme.cardSpace

    component Sample: PlainLabel {
        Layout.alignment: Qt.AlignBaseline
    }
    component Swatches: Row {
        id: swatches

        required property list<color> colors

        spacing: AppTheme.smallSpace
        Repeater {
            model: swatches.colors
            Rectangle {
                required property color modelData
                width: 48; height: 24; radius: 4; color: modelData
            }
        }
    }

    ReportSurface {
        Layout.fillWidth: true
        Layout.fillHeight: true
        Layout.preferredWidth: 1

        RowLayout {
            spacing: AppTheme.smallSpace
            Sample { text: "142,318"; font: AppTheme.heroMetricFont }
            Sample { text: "tokens"; font: AppTheme.title3Font; secondary: true }
        }
        Sample { text: "Large title, 28"; font: AppTheme.largeTitleFont }
        Sample { text: "Title 2, 20"; font: AppTheme.title2Font }
        Sample { text: "Headline and title 3, 17"; font: AppTheme.headlineFont }
        Sample { text: "Emphasis, 15"; font: AppTheme.emphasisFont }
        Sample { text: "Body and subheadline, 13: one real session, measured once." }
        Sample { text: "Caption, 12: an estimate says that it is one."; font: AppTheme.captionFont; secondary: true }
    }
    ReportSurface {
        Layout.fillWidth: true
        Layout.fillHeight: true
        Layout.preferredWidth: 1

        GalleryGroup {
            title: "Bands, as text and as shapes"
            PlainLabel { text: "Lean"; font: AppTheme.title2Font; color: AppTheme.bandLeanText }
            PlainLabel { text: "Heavy"; font: AppTheme.title2Font; color: AppTheme.bandHeavyText }
            PlainLabel { text: "Excessive"; font: AppTheme.title2Font; color: AppTheme.bandExcessiveText }
            Swatches { colors: [AppTheme.bandLean, AppTheme.bandHeavy, AppTheme.bandExcessive] }
        }
        GalleryGroup {
            title: "Series"
            Swatches { colors: AppTheme.chartColors }
        }
        GalleryGroup {
            title: "Accent, text, secondary text, separator"
            Swatches { colors: [AppTheme.accent, AppTheme.text, AppTheme.secondaryText, AppTheme.separator] }
        }
        GalleryGroup {
            title: "Figures of one width"
            Column {
                Repeater {
                    model: ["1,111,111", "888,888", "40,207"]
                    PlainLabel {
                        required property string modelData
                        width: 80; text: modelData; font: AppTheme.subheadlineStrongFont; horizontalAlignment: Text.AlignRight
                    }
                }
            }
        }
    }
}
