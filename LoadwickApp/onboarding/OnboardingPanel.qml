import QtQuick
import QtQuick.Templates
import QtQuick.Layouts
import Loadwick

// The sheet's content: the dots, the current step, and the navigation buttons.
FocusScope {
    id: panel

    required property OnboardingPresenter onboarding

    signal forward()
    signal back()
    signal skip()

    // A button that disappears hands the keyboard focus to the primary one.
    function takeKeyboardFrom(button) {
        if (panel.visible && !button.visible && (button.focus || button.activeFocus))
            primary.forceActiveFocus(Qt.OtherFocusReason);
    }

    focus: true
    implicitHeight: column.implicitHeight
    Keys.onReturnPressed: event => { if (!event.isAutoRepeat) panel.forward(); }
    Keys.onEnterPressed: event => { if (!event.isAutoRepeat) panel.forward(); }
    Keys.onUpPressed: scroller.scroll(-AppTheme.scrollStep)
    Keys.onDownPressed: scroller.scroll(AppTheme.scrollStep)
    Keys.onEscapePressed: if (panel.onboarding.currentStep.showsSkip) panel.skip()

    ColumnLayout {
        id: column

        anchors.fill: parent
        spacing: AppTheme.cardSpace

        RowLayout {
            Layout.preferredHeight: AppTheme.controlHeight
            spacing: 0

            OnboardingStepDots {
                currentIndex: panel.onboarding.currentIndex
                stepCount: panel.onboarding.stepCount
                position: panel.onboarding.position
            }
            Item { Layout.fillWidth: true }
            PushButton {
                id: skipButton

                // Its text, not its edge, aligns with the sheet's column.
                Layout.rightMargin: -AppTheme.mediumSpace
                title: qsTr("Skip")
                focusPolicy: Qt.TabFocus
                visible: panel.onboarding.currentStep.showsSkip
                onVisibleChanged: panel.takeKeyboardFrom(skipButton)
                onClicked: panel.skip()
            }
        }
        // The words of a step scroll if they are taller than the window.
        Flickable {
            id: scroller

            function scroll(distance) {
                scroller.contentY = Math.max(0, Math.min(scroller.contentHeight - scroller.height, scroller.contentY + distance));
            }

            Layout.fillWidth: true
            Layout.fillHeight: true
            implicitHeight: steps.implicitHeight
            contentHeight: Math.max(scroller.height, steps.implicitHeight)
            interactive: scroller.contentHeight > scroller.height
            boundsBehavior: Flickable.StopAtBounds
            clip: scroller.interactive
            ScrollBar.vertical: ThinScrollBar { }

            OnboardingSteps {
                id: steps

                width: scroller.width
                height: scroller.contentHeight
                onboarding: panel.onboarding
            }
            Connections {
                target: panel.onboarding

                function onMoved() { scroller.contentY = 0; }
            }
        }
        RowLayout {
            Layout.preferredHeight: AppTheme.controlHeight
            spacing: 0

            PushButton {
                id: backButton

                Layout.leftMargin: -AppTheme.mediumSpace
                title: qsTr("Back")
                focusPolicy: Qt.TabFocus
                visible: panel.onboarding.currentStep.showsBack
                onVisibleChanged: panel.takeKeyboardFrom(backButton)
                onClicked: panel.back()
            }
            Item { Layout.fillWidth: true }
            PushButton {
                id: primary

                title: panel.onboarding.currentStep.primaryTitle
                prominent: true
                focus: true
                onClicked: panel.forward()
            }
        }
    }
}
