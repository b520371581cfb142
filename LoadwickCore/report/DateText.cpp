#include "report/DateText.h"

#include <memory>

#include <unicode/datefmt.h>
#include <unicode/unistr.h>

#include "probe/Fatal.h"

namespace Loadwick::DateText {

std::string day(std::chrono::sys_seconds moment, const TextLocale &locale)
{
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::DateFormat> format(icu::DateFormat::createInstanceForSkeleton(
        icu::UnicodeString::fromUTF8("yMMMd"), icu::Locale(locale.dates.c_str()), status));
    if (U_FAILURE(status) || !format)
        fatalError("ICU could not format a date");
    const std::chrono::duration<UDate, std::milli> sinceEpoch = moment.time_since_epoch();
    icu::UnicodeString words;
    std::string text;
    return format->format(sinceEpoch.count(), words).toUTF8String(text);
}

} // namespace Loadwick::DateText
