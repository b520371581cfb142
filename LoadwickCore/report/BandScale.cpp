#include "report/BandScale.h"

#include <algorithm>
#include <limits>

namespace Loadwick::BandScale {

std::int64_t maximum(std::int64_t total) noexcept
{
    constexpr std::int64_t largest = std::numeric_limits<std::int64_t>::max();
    if (total < 1)
        return normalMaximum;
    const std::int64_t steps = total / step + 1;
    if (steps > largest / step)
        return largest;
    return std::max(steps * step, normalMaximum);
}

double position(std::int64_t total) noexcept
{
    return thresholdPosition(total, total);
}

double thresholdPosition(std::int64_t threshold, std::int64_t total) noexcept
{
    const double fraction = static_cast<double>(threshold) / static_cast<double>(maximum(total));
    return std::clamp(fraction, 0.0, 1.0);
}

} // namespace Loadwick::BandScale
