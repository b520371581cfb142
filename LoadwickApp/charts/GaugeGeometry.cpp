#include "charts/GaugeGeometry.h"

#include <algorithm>

namespace Loadwick::GaugeGeometry {

double span(double value) noexcept
{
    return fullSpan * std::clamp(value, 0.0, 100.0) / 100;
}

} // namespace Loadwick::GaugeGeometry
