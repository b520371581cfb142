import QtQuick
import QtQuick.Layouts
import Loadwick

// What each band means. Its rows arrive one after the other.
ColumnLayout {
    id: legend

    required property OnboardingPresenter onboarding

    spacing: AppTheme.mediumSpace

    ColumnLayout {
        Layout.alignment: Qt.AlignHCenter
        spacing: AppTheme.smallSpace

        Repeater {
            model: legend.onboarding.legend
            delegate: OnboardingLegendRow {}
        }
    }
    PlainLabel {
        Layout.alignment: Qt.AlignHCenter
        text: legend.onboarding.legendCaption
        font: AppTheme.captionFont
        secondary: true
    }
}
