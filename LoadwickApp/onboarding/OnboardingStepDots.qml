import QtQuick
import Loadwick

// One dot per step; that of the current one stands out.
Row {
    id: dots

    required property int currentIndex
    required property int stepCount
    // What the dots show, in words.
    required property string position

    spacing: AppTheme.smallSpace
    Accessible.role: Accessible.StaticText
    Accessible.name: dots.position

    Repeater {
        model: dots.stepCount
        delegate: OnboardingStepDot {
            id: dot

            required property int index

            isCurrent: dot.index === (dot.parent as OnboardingStepDots)?.currentIndex
        }
    }
}
