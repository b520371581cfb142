#include "text/DateText.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <memory>

#include <unicode/datefmt.h>
#include <unicode/timezone.h>
#include <unicode/unistr.h>

#include "text/Fatal.h"
#include "text/TextLocale.h"

namespace Loadwick {

namespace {

namespace chrono = std::chrono;

/// ICU's names for the parts of each form.
constexpr std::array skeletons{"y", "yMMM", "yMMMd", "yMMMdjm", "MMMd", "MMMdjm", "jm", "jms"};

std::unique_ptr<icu::DateFormat> makeFormat(const char *skeleton, const std::string &locale)
{
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::DateFormat> format(icu::DateFormat::createInstanceForSkeleton(
        icu::UnicodeString::fromUTF8(skeleton), icu::Locale(locale.c_str()), status));
    // unreachable: the root locale has what a locale lacks
    if (U_FAILURE(status) || !format)
        fatalError("ICU could not format a date");
    return format;
}

/// The format of each form in the locale that this thread used last: making one costs thirty times
/// as much as using it.
icu::DateFormat &formatOf(DateForm form, const std::string &locale)
{
    struct Cached
    {
        std::string locale;
        std::unique_ptr<icu::DateFormat> format;
    };
    thread_local std::array<Cached, skeletons.size()> formats;
    const auto index = static_cast<std::size_t>(form);
    Cached &cached = formats.at(index);
    if (!cached.format || cached.locale != locale)
        cached = {.locale = locale, .format = makeFormat(skeletons.at(index), locale)};
    return *cached.format;
}

constexpr std::string_view pattern = "0000-00-00T00:00:00Z";
constexpr chrono::sys_seconds earliest =
    chrono::sys_days(chrono::year(0) / chrono::January / chrono::day(1));
constexpr chrono::sys_seconds afterLatest =
    chrono::sys_days(chrono::year(10'000) / chrono::January / chrono::day(1));

bool fitsPattern(std::string_view text) noexcept
{
    return std::equal(text.begin(), text.end(), pattern.begin(), pattern.end(),
                      [](char given, char wanted) {
                          return wanted == '0' ? given >= '0' && given <= '9' : given == wanted;
                      });
}

int number(std::string_view text, std::size_t start, std::size_t count) noexcept
{
    int value = 0;
    for (const char digit : text.substr(start, count))
        value = value * 10 + (digit - '0');
    return value;
}

void put(std::string &text, std::size_t start, std::size_t count, int value)
{
    for (std::size_t index = start + count; index-- > start; value /= 10)
        text[index] = static_cast<char>('0' + value % 10);
}

} // namespace

std::string dateText(chrono::sys_seconds moment, DateForm form, const TextLocale &locale)
{
    icu::DateFormat &format = formatOf(form, locale.dates);
    format.adoptTimeZone(icu::TimeZone::createDefault());
    const chrono::duration<UDate, std::milli> sinceEpoch = moment.time_since_epoch();
    icu::UnicodeString words;
    std::string text;
    return format.format(sinceEpoch.count(), words).toUTF8String(text);
}

std::string IsoDate::text(chrono::sys_seconds moment)
{
    moment = std::clamp(moment, earliest, afterLatest - chrono::seconds(1));
    const auto midnight = chrono::floor<chrono::days>(moment);
    const chrono::year_month_day date(midnight);
    const chrono::hh_mm_ss time(moment - midnight);
    std::string text(pattern);
    put(text, 0, 4, static_cast<int>(date.year()));
    put(text, 5, 2, static_cast<int>(static_cast<unsigned>(date.month())));
    put(text, 8, 2, static_cast<int>(static_cast<unsigned>(date.day())));
    put(text, 11, 2, static_cast<int>(time.hours().count()));
    put(text, 14, 2, static_cast<int>(time.minutes().count()));
    put(text, 17, 2, static_cast<int>(time.seconds().count()));
    return text;
}

std::optional<chrono::sys_seconds> IsoDate::fromText(std::string_view text) noexcept
{
    if (!fitsPattern(text))
        return std::nullopt;
    const chrono::year_month_day date(chrono::year(number(text, 0, 4)),
                                      chrono::month(static_cast<unsigned>(number(text, 5, 2))),
                                      chrono::day(static_cast<unsigned>(number(text, 8, 2))));
    const int hour = number(text, 11, 2);
    const int minute = number(text, 14, 2);
    const int second = number(text, 17, 2);
    if (!date.ok() || hour > 23 || minute > 59 || second > 59)
        return std::nullopt;
    return chrono::sys_days(date) + chrono::hours(hour) + chrono::minutes(minute) +
           chrono::seconds(second);
}

} // namespace Loadwick
