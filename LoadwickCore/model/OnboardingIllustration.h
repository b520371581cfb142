#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace Loadwick {

/// Which picture a step of the walk-through shows.
class OnboardingIllustration
{
public:
    enum Value
    {
        measureIcon,
        toolbarPointer,
        scanSpinner,
        bandLegend
    };

    static const std::array<OnboardingIllustration, 4> all;

    constexpr OnboardingIllustration(Value value) noexcept : m_value(value) {}
    constexpr operator Value() const noexcept { return m_value; }

    /// The case's name, as in identifiers.
    [[nodiscard]] std::string_view rawValue() const noexcept;
    [[nodiscard]] static std::optional<OnboardingIllustration>
    fromRawValue(std::string_view text) noexcept;

private:
    Value m_value;
};

} // namespace Loadwick
