#pragma once

#include <cstdint>
#include <vector>

namespace Loadwick {

/// A linear axis of counts that begins at 0, with ticks in steps of 1, 2 or 5 times a power of ten.
class AxisScale
{
public:
    /// From 0 to `upperBound` (at least 1) in at most `mostIntervals` (at least 1) steps.
    AxisScale(std::int64_t upperBound, int mostIntervals) noexcept;

    [[nodiscard]] std::int64_t upperBound() const noexcept { return m_upperBound; }
    [[nodiscard]] std::int64_t step() const noexcept { return m_step; }

    /// 0 and every multiple of the step up to the upper bound.
    [[nodiscard]] std::vector<std::int64_t> ticks() const;

    /// `value` as a share of the axis; what lies beyond an end counts as that end.
    [[nodiscard]] double position(std::int64_t value) const noexcept;

private:
    std::int64_t m_upperBound;
    std::int64_t m_step;
};

} // namespace Loadwick
