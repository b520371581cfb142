#pragma once

#include <chrono>
#include <string>

#include "text/TextLocale.h"

/// Moments as text in the locale's own order and words, in the time zone of the process. Cheap
/// enough for each row of a list.
namespace Loadwick::DateText {

/// Abbreviated month, day and year: "Mar 4, 2026" in English.
[[nodiscard]] std::string day(std::chrono::sys_seconds moment, const TextLocale &locale);

/// The same with hours and minutes: "Mar 4, 2026, 9:15 AM".
[[nodiscard]] std::string dayAndTime(std::chrono::sys_seconds moment, const TextLocale &locale);

/// Hours and minutes: "9:15 AM".
[[nodiscard]] std::string timeOfDay(std::chrono::sys_seconds moment, const TextLocale &locale);

/// Hours, minutes and seconds: "9:15:27 AM".
[[nodiscard]] std::string secondOfDay(std::chrono::sys_seconds moment, const TextLocale &locale);

/// Abbreviated month and day: "Mar 4".
[[nodiscard]] std::string dayOfYear(std::chrono::sys_seconds moment, const TextLocale &locale);

/// The same with hours and minutes: "Mar 4, 9:15 AM".
[[nodiscard]] std::string dayOfYearAndTime(std::chrono::sys_seconds moment,
                                           const TextLocale &locale);

/// Abbreviated month and year: "Mar 2026".
[[nodiscard]] std::string month(std::chrono::sys_seconds moment, const TextLocale &locale);

/// "2026".
[[nodiscard]] std::string year(std::chrono::sys_seconds moment, const TextLocale &locale);

} // namespace Loadwick::DateText
