import QtQuick
import QtQuick.Layouts
import Loadwick

// One step: its picture, its title and its words.
ColumnLayout {
    id: content

    required property OnboardingPresenter onboarding
    required property OnboardingStepTexts step

    spacing: AppTheme.smallSpace

    Item {
        Layout.fillWidth: true
        Layout.preferredHeight: AppTheme.illustrationHeight
        Layout.bottomMargin: AppTheme.smallSpace

        StateIcon {
            anchors.centerIn: parent
            symbol: "gauge"
            tint: AppTheme.accent
            visible: content.step.illustration === OnboardingStepTexts.MeasureIcon
        }
        OnboardingToolbarCallout {
            anchors.centerIn: parent
            visible: content.step.illustration === OnboardingStepTexts.ToolbarPointer
        }
        StateIcon {
            anchors.centerIn: parent
            symbol: "arrow.triangle.2.circlepath"
            tint: AppTheme.accent
            turning: true
            visible: content.step.illustration === OnboardingStepTexts.ScanSpinner
        }
        OnboardingBandLegend {
            anchors.centerIn: parent
            onboarding: content.onboarding
            visible: content.step.illustration === OnboardingStepTexts.BandLegend
        }
    }
    TitleLabel {
        Layout.fillWidth: true
        Layout.leftMargin: AppTheme.pageMargin
        Layout.rightMargin: AppTheme.pageMargin
        text: content.step.title
        font: AppTheme.title2Font
        horizontalAlignment: Text.AlignHCenter
    }
    PlainLabel {
        Layout.fillWidth: true
        text: content.step.body
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignHCenter
        lineHeight: 1.15
    }
    PlainLabel {
        Layout.fillWidth: true
        text: content.step.platformNote
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignHCenter
        lineHeight: 1.15
        visible: text.length > 0
    }
    PlainLabel {
        Layout.fillWidth: true
        text: content.step.footnote
        font: AppTheme.captionFont
        secondary: true
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignHCenter
        visible: text.length > 0
    }
}
