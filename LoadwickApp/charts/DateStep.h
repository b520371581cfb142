#pragma once

#include <chrono>
#include <string>
#include <vector>

#include "text/TextLocale.h"

namespace Loadwick {

/// A distance between round moments on the wall clock and in the calendar (Gregorian) of the
/// process's time zone: five minutes, a day, three months.
struct DateStep
{
    enum class Unit
    {
        second,
        minute,
        hour,
        day,
        week,
        month,
        year
    };

    Unit unit;
    int count; ///< of units

    /// From a second to a thousand years, the shortest first.
    [[nodiscard]] static const std::vector<DateStep> &all();

    /// Its approximate length.
    [[nodiscard]] std::chrono::seconds length() const noexcept;

    /// The round moments from `first` to `last`, both included, ascending. A wall-clock time that a
    /// day has twice appears once; one that it lacks appears as the moment that follows.
    [[nodiscard]] std::vector<std::chrono::sys_seconds>
    moments(std::chrono::sys_seconds first, std::chrono::sys_seconds last) const;

    /// A round moment in as few words as the step allows; `withDay` adds the day to a time of day.
    [[nodiscard]] std::string label(std::chrono::sys_seconds moment, bool withDay,
                                    const TextLocale &locale) const;
};

} // namespace Loadwick
