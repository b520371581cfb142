#pragma once

#include <array>
#include <string_view>

#include "model/OnboardingCompletion.h"
#include "model/OnboardingLegendEntry.h"
#include "model/OnboardingStep.h"

namespace Loadwick {

/// The walk-through of the first launch: where it stands, which way it last went, and whether it is
/// over. Its owner moves it and draws it; once finished it is moved no more.
class OnboardingFlow
{
public:
    enum class Direction
    {
        forward,
        backward
    };

    static const std::array<OnboardingStep, OnboardingStep::lastIndex + 1> steps;
    static const std::array<OnboardingLegendEntry, 3> legend;

    /// At the first step.
    explicit OnboardingFlow(OnboardingCompletion completion);

    [[nodiscard]] int currentIndex() const noexcept { return m_currentIndex; }
    [[nodiscard]] const OnboardingStep &currentStep() const noexcept;
    [[nodiscard]] static constexpr int stepCount() noexcept
    {
        return OnboardingStep::lastIndex + 1;
    }

    /// Of the last move; forward before the first one.
    [[nodiscard]] Direction direction() const noexcept { return m_direction; }
    [[nodiscard]] bool isFinished() const noexcept { return m_isFinished; }
    [[nodiscard]] bool shouldPresent() const { return m_completion.shouldPresent(); }

    /// To the next step; from the last one, finishes.
    void advance();
    /// To the step before; nothing on the first.
    void goBack();

    /// Both remember the completion and leave the position as it is: skipping counts as completing.
    void skip();
    void finish();

private:
    OnboardingCompletion m_completion;
    int m_currentIndex = 0;
    Direction m_direction = Direction::forward;
    bool m_isFinished = false;
};

} // namespace Loadwick
