#include "model/OnboardingIllustration.h"

namespace Loadwick {

const std::array<OnboardingIllustration, 4> OnboardingIllustration::all{
    OnboardingIllustration::measureIcon, OnboardingIllustration::toolbarPointer,
    OnboardingIllustration::scanSpinner, OnboardingIllustration::bandLegend};

std::string_view OnboardingIllustration::rawValue() const noexcept
{
    switch (m_value) {
    case measureIcon:
        return "measureIcon";
    case toolbarPointer:
        return "toolbarPointer";
    case scanSpinner:
        return "scanSpinner";
    case bandLegend:
        break;
    }
    return "bandLegend";
}

std::optional<OnboardingIllustration>
OnboardingIllustration::fromRawValue(std::string_view text) noexcept
{
    for (const OnboardingIllustration illustration : all)
        if (illustration.rawValue() == text)
            return illustration;
    return std::nullopt;
}

} // namespace Loadwick
