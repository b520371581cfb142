#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace Loadwick {

struct TextLocale;

/// The parts of a moment that a text shows; the locale decides their order and words.
enum class DateForm
{
    year,             ///< "2026"
    month,            ///< "Mar 2026"
    day,              ///< "Mar 4, 2026"
    dayAndTime,       ///< "Mar 4, 2026, 9:15 AM"
    dayOfYear,        ///< "Mar 4"
    dayOfYearAndTime, ///< "Mar 4, 9:15 AM"
    timeOfDay,        ///< "9:15 AM"
    secondOfDay       ///< "9:15:27 AM"
};

/// A moment as text in a locale's dates and the time zone of the process. Cheap enough for each row
/// of a list.
[[nodiscard]] std::string dateText(std::chrono::sys_seconds moment, DateForm form,
                                   const TextLocale &locale);

/// Moments as ISO 8601 text in UTC with whole seconds: 2026-03-04T09:15:27Z.
namespace IsoDate {

/// A moment outside the years 0 to 9999, which this form cannot express, is clamped to them.
[[nodiscard]] std::string text(std::chrono::sys_seconds moment);

/// Reads exactly that form; nothing for a day or an hour that does not exist.
[[nodiscard]] std::optional<std::chrono::sys_seconds> fromText(std::string_view text) noexcept;

} // namespace IsoDate

} // namespace Loadwick
