#pragma once

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
