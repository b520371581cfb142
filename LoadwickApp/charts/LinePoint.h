#pragma once

namespace Loadwick {

/// A place in a plot, as shares of its width and height: (0, 0) is at the lower left.
struct LinePoint
{
    double x;
    double y;

    friend bool operator==(const LinePoint &, const LinePoint &) = default;
};

} // namespace Loadwick
