import QtQuick
import Loadwick

// All steps, of which only the current one is visible. Earlier steps wait on its left and later
// ones on its right, so that a step enters from the direction of the move.
Item {
    id: steps

    required property OnboardingPresenter onboarding

    // As high as the tallest step, so that the buttons do not move.
    implicitHeight: {
        let highest = 0;
        for (let index = 0; index < repeater.count; ++index)
            highest = Math.max(highest, repeater.itemAt(index)?.implicitHeight ?? 0);
        return Math.ceil(highest);
    }

    Repeater {
        id: repeater

        model: steps.onboarding.stepCount
        delegate: OnboardingStepContent {
            id: content

            required property int index
            readonly property int distance: content.index - (content.onboarding?.currentIndex ?? 0)

            width: content.parent?.width ?? 0
            x: AppTheme.reduceMotion ? 0 : Math.sign(content.distance) * AppTheme.stepSlide
            opacity: content.distance === 0 ? 1 : 0
            visible: opacity > 0
            // Qt 6.8 cannot compile a property that has the type of its own file.
            onboarding: (content.parent as OnboardingSteps)?.onboarding ?? null
            step: content.onboarding?.step(content.index) ?? null

            Behavior on x {
                enabled: !AppTheme.reduceMotion
                NumberAnimation { duration: AppTheme.stepDuration; easing.type: Easing.OutQuad }
            }
            Behavior on opacity {
                NumberAnimation { duration: AppTheme.stepDuration; easing.type: Easing.OutQuad }
            }
        }
    }
}
