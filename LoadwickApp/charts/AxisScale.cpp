#include "charts/AxisScale.h"

#include <algorithm>
#include <limits>

namespace Loadwick {
namespace {

constexpr std::int64_t largest = std::numeric_limits<std::int64_t>::max();

/// The smallest step of the series 1, 2, 5, 10, 20, 50 … that is not below `least`; the largest
/// integer where no such step fits.
std::int64_t niceStep(std::int64_t least) noexcept
{
    std::int64_t power = 1;
    for (;;) {
        for (const std::int64_t factor : {1, 2, 5}) {
            if (power > largest / factor)
                return largest;
            if (power * factor >= least)
                return power * factor;
        }
        if (power > largest / 10)
            return largest;
        power *= 10;
    }
}

} // namespace

AxisScale::AxisScale(std::int64_t upperBound, int mostIntervals) noexcept
    : m_upperBound(std::max<std::int64_t>(upperBound, 1))
{
    const std::int64_t intervals = std::max(mostIntervals, 1);
    m_step = niceStep(m_upperBound / intervals + (m_upperBound % intervals == 0 ? 0 : 1));
}

std::vector<std::int64_t> AxisScale::ticks() const
{
    std::vector<std::int64_t> ticks;
    for (std::int64_t count = 0; count <= m_upperBound / m_step; ++count)
        ticks.push_back(count * m_step);
    return ticks;
}

double AxisScale::position(std::int64_t value) const noexcept
{
    return std::clamp(static_cast<double>(value) / static_cast<double>(m_upperBound), 0.0, 1.0);
}

} // namespace Loadwick
