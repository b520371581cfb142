#pragma once

#include <span>
#include <vector>

namespace Loadwick {

/// A rectangle in unit coordinates: the whole map is the square from 0 to 1 on both axes, y grows
/// downwards.
struct TreemapRect
{
    double x;
    double y;
    double width;
    double height;

    static const TreemapRect zero;

    [[nodiscard]] constexpr double area() const noexcept { return width * height; }

    friend bool operator==(const TreemapRect &, const TreemapRect &) = default;
};

inline constexpr TreemapRect TreemapRect::zero{.x = 0.0, .y = 0.0, .width = 0.0, .height = 0.0};

} // namespace Loadwick

/// Divides the unit square into rectangles whose areas are proportional to weights: squarified
/// treemaps (Bruls, Huizing and van Wijk, 2000), rows along the shorter side of the free space
/// that are extended while their worst aspect ratio does not get worse.
namespace Loadwick::TreemapLayout {

/// One rectangle per weight, at the same position. A weight that is zero, negative, infinite or not
/// a number gets `TreemapRect::zero`. The largest weight is at the left or the top; equal weights
/// keep their order.
[[nodiscard]] std::vector<TreemapRect> layout(std::span<const double> weights);

} // namespace Loadwick::TreemapLayout
