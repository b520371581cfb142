#pragma once

#include <chrono>
#include <string>

#include "report/TextLocale.h"

/// Moments as text, in the time zone of the process.
namespace Loadwick::DateText {

/// Abbreviated month, day and year in the locale's order: "Mar 4, 2026" in English.
[[nodiscard]] std::string day(std::chrono::sys_seconds moment, const TextLocale &locale);

} // namespace Loadwick::DateText
