#pragma once

#include <chrono>
#include <functional>
#include <string_view>
#include <vector>

#include "charts/DateTick.h"
#include "text/TextLocale.h"

namespace Loadwick {

/// An axis of dates from one moment to another. Its ticks are round in the calendar and the time
/// zone of the process (full hours, midnights, first days of weeks, months and years), with clocks
/// that are put forward or back between them.
class DateAxisScale
{
public:
    /// `last` is not before `first`; they may be equal.
    DateAxisScale(std::chrono::sys_seconds first, std::chrono::sys_seconds last) noexcept
        : m_first(first), m_last(last)
    {}

    /// At most `mostTicks` (at least 1), in order, inside the axis, no two with one label. An axis
    /// of one moment has that as its one tick; one that is too short for round moments may have
    /// none.
    [[nodiscard]] std::vector<DateTick> ticks(int mostTicks, const TextLocale &locale) const;

    /// The most ticks whose labels stand side by side on an axis `width` long with `gap` between
    /// them, each centred on its tick as far as the ends allow. `measure` gives a label's width.
    [[nodiscard]] std::vector<DateTick>
    fittingTicks(double width, double gap, const TextLocale &locale,
                 const std::function<double(std::string_view)> &measure) const;

    /// A moment as a share of the axis; the middle when the axis is one moment.
    [[nodiscard]] double position(std::chrono::sys_seconds moment) const noexcept;

    /// Where a label `labelWidth` wide begins that names `moment` on an axis `width` long.
    [[nodiscard]] double labelStart(std::chrono::sys_seconds moment, double labelWidth,
                                    double width) const noexcept;

private:
    std::chrono::sys_seconds m_first;
    std::chrono::sys_seconds m_last;
};

} // namespace Loadwick
