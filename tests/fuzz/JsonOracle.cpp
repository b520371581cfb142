#include "fuzz/JsonOracle.h"

#include <limits>
#include <string>

#include "support/LoneSurrogates.h"
#include "text/UnicodeText.h"

namespace Loadwick {

namespace {

bool isDigit(char byte)
{
    return byte >= '0' && byte <= '9';
}

/// Whether a number in the text may be out of a double's range: only an exponent or more digits
/// than the largest double has lead there.
bool mayExceedDoubles(std::string_view text)
{
    int digits = 0;
    for (const char byte : text) {
        if (digits > 0 && (byte == 'e' || byte == 'E'))
            return true;
        digits = isDigit(byte) ? digits + 1 : 0;
        if (digits > std::numeric_limits<double>::max_exponent10)
            return true;
    }
    return false;
}

/// Whether the library refuses a number of the text as out of range.
bool hasNumberOutOfRange(const std::string &text)
{
    try {
        return nlohmann::json::parse(text).is_discarded(); // never: it throws
    } catch (const nlohmann::json::out_of_range &) {
        return true;
    } catch (const nlohmann::json::parse_error &) {
        return false;
    }
}

} // namespace

JsonOracle JsonOracle::of(std::string_view document)
{
    const std::string_view content = trimmed(document);
    if (content.find('\0') != std::string_view::npos || content.starts_with("\xEF\xBB\xBF"))
        return {.isJudge = false, .object = std::nullopt};
    const std::string text = withoutLoneSurrogates(content);
    // Throwing takes ten times as long as parsing most inputs.
    nlohmann::json value = nlohmann::json::parse(text, nullptr, /* allow_exceptions */ false);
    if (value.is_object())
        return {.isJudge = true, .object = std::move(value)};
    const bool isOutOfRange =
        value.is_discarded() && mayExceedDoubles(text) && hasNumberOutOfRange(text);
    return {.isJudge = !isOutOfRange, .object = std::nullopt};
}

const nlohmann::json *JsonOracle::find(const nlohmann::json *value, const char *key)
{
    return value != nullptr && value->is_object() && value->contains(key) ? &value->at(key)
                                                                          : nullptr;
}

std::optional<std::int64_t> JsonOracle::integer(const nlohmann::json *value)
{
    if (value == nullptr || !value->is_number_integer())
        return std::nullopt;
    if (value->is_number_unsigned() &&
        value->get<std::uint64_t>() > std::uint64_t{std::numeric_limits<std::int64_t>::max()})
        return std::nullopt;
    return value->get<std::int64_t>();
}

std::optional<std::string> JsonOracle::text(const nlohmann::json *value)
{
    if (value == nullptr || !value->is_string())
        return std::nullopt;
    return value->get<std::string>();
}

} // namespace Loadwick
