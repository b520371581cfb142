#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "text/TextLocale.h"

namespace Loadwick {

/// A linear axis of counts that begins at 0, with ticks in steps of 1, 2 or 5 times a power of ten.
class AxisScale
{
public:
    /// From 0 to `upperBound` (at least 1) in at most `mostIntervals` (at least 1) steps.
    AxisScale(std::int64_t upperBound, int mostIntervals) noexcept;

    /// 0 and every multiple of the step up to the upper bound.
    [[nodiscard]] std::vector<std::int64_t> ticks() const;

    /// `value` as a share of the axis, clamped to its ends.
    [[nodiscard]] double position(std::int64_t value) const noexcept;

private:
    std::int64_t m_upperBound;
    std::int64_t m_step;
};

/// A labelled moment on a date axis.
struct DateTick
{
    std::chrono::sys_seconds moment;
    std::string label;

    friend bool operator==(const DateTick &, const DateTick &) = default;
};

/// A date axis from one moment to another. Its ticks are round in the calendar and the time zone of
/// the process (full hours, midnights, first days of weeks, months and years), across clock changes
/// too.
class DateAxisScale
{
public:
    /// `last` is not before `first`; they may be equal.
    DateAxisScale(std::chrono::sys_seconds first, std::chrono::sys_seconds last) noexcept
        : m_first(first), m_last(last)
    {}

    /// At most `mostTicks` (at least 1), in order, within the axis, with distinct labels. An axis
    /// of a single moment has that one tick; an axis too short for round moments may have none.
    [[nodiscard]] std::vector<DateTick> ticks(int mostTicks, const TextLocale &locale) const;

    /// The most ticks whose labels fit side by side on an axis `width` long with `gap` between
    /// them, each centred on its tick as far as the ends allow. `measure` returns a label's width.
    [[nodiscard]] std::vector<DateTick>
    fittingTicks(double width, double gap, const TextLocale &locale,
                 const std::function<double(std::string_view)> &measure) const;

    /// A moment as a share of the axis; the middle if the axis is a single moment.
    [[nodiscard]] double position(std::chrono::sys_seconds moment) const noexcept;

    /// The left edge of the label of `moment`, `labelWidth` wide, on an axis `width` long.
    [[nodiscard]] double labelStart(std::chrono::sys_seconds moment, double labelWidth,
                                    double width) const noexcept;

private:
    std::chrono::sys_seconds m_first;
    std::chrono::sys_seconds m_last;
};

} // namespace Loadwick
