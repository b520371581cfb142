#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "charts/LinePoint.h"
#include "charts/LineSample.h"

namespace Loadwick {

/// Where the points of a line stand: their dates from the left to the right edge, their totals over
/// a ground of 0.
class LineGeometry
{
public:
    /// `samples` in any order; those of one second keep theirs.
    explicit LineGeometry(std::span<const LineSample> samples);

    /// The samples by date, and their points in the same order.
    [[nodiscard]] const std::vector<LineSample> &samples() const noexcept { return m_samples; }
    [[nodiscard]] const std::vector<LinePoint> &points() const noexcept { return m_points; }

    /// The total at the upper edge: 69,000 while no total is above 60,000, else the largest total
    /// and 15 % of it, truncated; the largest integer where that does not fit.
    [[nodiscard]] std::int64_t upperBound() const noexcept { return m_upperBound; }

    /// The point nearest to a place by its date alone; among those of one date the one whose total
    /// is nearest. Nothing without points.
    [[nodiscard]] std::optional<std::size_t> nearest(const LinePoint &place) const noexcept;

private:
    std::vector<LineSample> m_samples;
    std::vector<LinePoint> m_points;
    std::int64_t m_upperBound;
};

} // namespace Loadwick
