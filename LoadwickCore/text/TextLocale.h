#pragma once

#include <string>

#include "posix/ProcessContext.h"

namespace Loadwick {

/// The locales in which figures and dates are written, as ICU identifiers ("de_DE").
struct TextLocale
{
    std::string numbers = "en_US";
    std::string dates = "en_US";

    /// From LC_ALL, else LC_NUMERIC (LC_TIME for dates), else LANG; a variable that is empty counts
    /// as unset. C, POSIX, what ICU does not know, and no value at all count as English (United
    /// States), which ICU itself falls back to from then on.
    [[nodiscard]] static TextLocale fromEnvironment(const Environment &environment);

    friend bool operator==(const TextLocale &, const TextLocale &) = default;
};

} // namespace Loadwick
