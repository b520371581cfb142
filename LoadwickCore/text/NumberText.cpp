#include "text/NumberText.h"

#include <array>
#include <charconv>
#include <limits>

#include <unicode/bytestream.h>
#include <unicode/numberformatter.h>

#include "text/Fatal.h"
#include "text/TextLocale.h"

namespace Loadwick::NumberText {

namespace {

using Formatter = icu::number::LocalizedNumberFormatter;

struct Formatters
{
    std::string locale;
    Formatter plain;
    Formatter withSign; ///< writes a plus sign, too
};

/// Those of the locale that this thread used last: a page writes hundreds of figures in one locale,
/// and building a formatter costs far more than using it.
const Formatters &formattersFor(const std::string &locale)
{
    thread_local Formatters cached;
    if (cached.locale != locale || locale.empty()) {
        cached.locale = locale;
        cached.plain = icu::number::NumberFormatter::withLocale(icu::Locale(locale.c_str()));
        cached.withSign = cached.plain.sign(UNUM_SIGN_ALWAYS);
    }
    return cached;
}

std::string written(std::int64_t number, const Formatter &formatter)
{
    UErrorCode status = U_ZERO_ERROR;
    const auto figure = formatter.formatInt(number, status);
    std::string text;
    figure.toString(status).toUTF8String(text);
    // unreachable: every locale can write every integer
    if (U_FAILURE(status))
        fatalError("ICU could not format an integer");
    return text;
}

} // namespace

std::string grouped(std::int64_t number, const TextLocale &locale)
{
    return written(number, formattersFor(locale.numbers).plain);
}

std::string groupedChange(std::int64_t change, const TextLocale &locale)
{
    return written(change, formattersFor(locale.numbers).withSign);
}

std::string oneDecimal(double number)
{
    // Sign, every digit before the point of the largest double, the point and one digit.
    std::array<char, std::numeric_limits<double>::max_exponent10 + 8> digits{};
    const auto written = std::to_chars(digits.data(), digits.data() + digits.size(), number,
                                       std::chars_format::fixed, 1);
    return {digits.data(), written.ptr};
}

} // namespace Loadwick::NumberText
