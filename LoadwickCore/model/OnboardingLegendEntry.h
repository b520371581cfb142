#pragma once

#include <string_view>

#include "report/OpinionBand.h"

namespace Loadwick {

/// One row of the band legend: what falling into a band means for the user.
struct OnboardingLegendEntry
{
    OpinionBand band;
    std::string_view detail;

    [[nodiscard]] std::string_view title() const noexcept { return band.title(); }
    /// The entry's identity.
    [[nodiscard]] std::string_view id() const noexcept { return band.rawValue(); }

    friend bool operator==(const OnboardingLegendEntry &, const OnboardingLegendEntry &) = default;
};

} // namespace Loadwick
