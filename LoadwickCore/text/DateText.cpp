#include "text/DateText.h"

#include <map>
#include <memory>
#include <string_view>

#include <unicode/datefmt.h>
#include <unicode/timezone.h>
#include <unicode/unistr.h>

#include "text/Fatal.h"

namespace Loadwick::DateText {

namespace {

std::unique_ptr<icu::DateFormat> makeFormat(std::string_view skeleton, const std::string &locale)
{
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::DateFormat> format(icu::DateFormat::createInstanceForSkeleton(
        icu::UnicodeString::fromUTF8({skeleton.data(), static_cast<int32_t>(skeleton.size())}),
        icu::Locale(locale.c_str()), status));
    // not taken: what a locale lacks, the root locale has
    if (U_FAILURE(status) || !format)
        fatalError("ICU could not format a date");
    return format;
}

/// The format of each skeleton in the locale that this thread asked for last: making one costs
/// thirty times as much as using it.
icu::DateFormat &formatOf(std::string_view skeleton, const std::string &locale)
{
    struct Cached
    {
        std::string locale;
        std::unique_ptr<icu::DateFormat> format;
    };
    thread_local std::map<std::string_view, Cached> formats;
    Cached &cached = formats[skeleton];
    if (!cached.format || cached.locale != locale)
        cached = {.locale = locale, .format = makeFormat(skeleton, locale)};
    return *cached.format;
}

/// `skeleton` is a constant: it names the parts of a date, their order is the locale's.
std::string written(std::chrono::sys_seconds moment, std::string_view skeleton,
                    const TextLocale &locale)
{
    icu::DateFormat &format = formatOf(skeleton, locale.dates);
    format.adoptTimeZone(icu::TimeZone::createDefault());
    const std::chrono::duration<UDate, std::milli> sinceEpoch = moment.time_since_epoch();
    icu::UnicodeString words;
    std::string text;
    return format.format(sinceEpoch.count(), words).toUTF8String(text);
}

} // namespace

std::string day(std::chrono::sys_seconds moment, const TextLocale &locale)
{
    return written(moment, "yMMMd", locale);
}

std::string dayAndTime(std::chrono::sys_seconds moment, const TextLocale &locale)
{
    return written(moment, "yMMMdjm", locale);
}

std::string timeOfDay(std::chrono::sys_seconds moment, const TextLocale &locale)
{
    return written(moment, "jm", locale);
}

std::string secondOfDay(std::chrono::sys_seconds moment, const TextLocale &locale)
{
    return written(moment, "jms", locale);
}

std::string dayOfYear(std::chrono::sys_seconds moment, const TextLocale &locale)
{
    return written(moment, "MMMd", locale);
}

std::string dayOfYearAndTime(std::chrono::sys_seconds moment, const TextLocale &locale)
{
    return written(moment, "MMMdjm", locale);
}

std::string month(std::chrono::sys_seconds moment, const TextLocale &locale)
{
    return written(moment, "yMMM", locale);
}

std::string year(std::chrono::sys_seconds moment, const TextLocale &locale)
{
    return written(moment, "y", locale);
}

} // namespace Loadwick::DateText
