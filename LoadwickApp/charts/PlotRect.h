#pragma once

namespace Loadwick {

/// A rectangle of a picture, in pixels; y grows downwards.
struct PlotRect
{
    double x;
    double y;
    double width;
    double height;

    [[nodiscard]] double right() const noexcept { return x + width; }
    [[nodiscard]] double bottom() const noexcept { return y + height; }
    [[nodiscard]] bool holds(double pointX, double pointY) const noexcept
    {
        return pointX >= x && pointX <= right() && pointY >= y && pointY <= bottom();
    }

    friend bool operator==(const PlotRect &, const PlotRect &) = default;
};

} // namespace Loadwick
