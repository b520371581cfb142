#pragma once

#include <span>
#include <vector>

#include "report/TreemapRect.h"

/// Divides the unit square into rectangles whose areas are proportional to weights: squarified
/// treemaps (Bruls, Huizing and van Wijk, 2000), rows along the shorter side of the free space
/// that are extended while their worst aspect ratio does not get worse.
namespace Loadwick::TreemapLayout {

/// One rectangle per weight, at the same position. A weight that is zero, negative, infinite or not
/// a number gets `TreemapRect::zero`. The largest weight lies at the left or the top; equal weights
/// follow each other in their order.
[[nodiscard]] std::vector<TreemapRect> layout(std::span<const double> weights);

} // namespace Loadwick::TreemapLayout
