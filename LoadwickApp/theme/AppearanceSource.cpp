#include "theme/AppearanceSource.h"

#include <algorithm>

namespace Loadwick {

DesktopPreferences DesktopPreferences::orElse(const DesktopPreferences &other) const
{
    return {.dark = dark ? dark : other.dark,
            .reducedMotion = reducedMotion ? reducedMotion : other.reducedMotion,
            .moreContrast = moreContrast ? moreContrast : other.moreContrast,
            .accent = accent ? accent : other.accent,
            .fontPoints = fontPoints ? fontPoints : other.fontPoints,
            .textFactor = textFactor ? textFactor : other.textFactor};
}

double DesktopPreferences::textScale() const
{
    constexpr double usualPoints = 10;
    constexpr double mostUsualPoints = 11;
    const double points = fontPoints.value_or(usualPoints);
    const double fontScale = points > mostUsualPoints ? points / usualPoints : 1.0;
    return std::clamp(fontScale * textFactor.value_or(1.0), 1.0, largestTextScale);
}

} // namespace Loadwick

#include "moc_AppearanceSource.cpp"
