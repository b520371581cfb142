#pragma once

#include <optional>
#include <string_view>

#include "model/OnboardingIllustration.h"

namespace Loadwick {

/// One step of the walk-through. Its texts are constants of the program.
struct OnboardingStep
{
    int index; ///< 0 to `lastIndex`; the step's identity
    std::string_view title;
    std::string_view body;
    std::optional<std::string_view> footnote;
    std::string_view primaryTitle; ///< on the button that leads forward
    OnboardingIllustration illustration;

    static constexpr int lastIndex = 3;

    [[nodiscard]] constexpr bool isFirst() const noexcept { return index == 0; }
    [[nodiscard]] constexpr bool isLast() const noexcept { return index == lastIndex; }
    [[nodiscard]] constexpr bool showsBack() const noexcept { return !isFirst(); }
    [[nodiscard]] constexpr bool showsSkip() const noexcept { return !isLast(); }

    friend bool operator==(const OnboardingStep &, const OnboardingStep &) = default;
};

} // namespace Loadwick
