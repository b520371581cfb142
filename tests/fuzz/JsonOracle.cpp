#include "fuzz/JsonOracle.h"

#include <limits>

#include "support/LoneSurrogates.h"
#include "text/UnicodeText.h"

namespace Loadwick {

JsonOracle JsonOracle::of(std::string_view document)
{
    const std::string_view content = trimmed(document);
    if (content.find('\0') != std::string_view::npos || content.starts_with("\xEF\xBB\xBF"))
        return {.isJudge = false, .object = std::nullopt};
    try {
        nlohmann::json value = nlohmann::json::parse(withoutLoneSurrogates(content));
        if (!value.is_object())
            return {.isJudge = true, .object = std::nullopt};
        return {.isJudge = true, .object = std::move(value)};
    } catch (const nlohmann::json::parse_error &) {
        return {.isJudge = true, .object = std::nullopt};
    } catch (const nlohmann::json::out_of_range &) {
        return {.isJudge = false, .object = std::nullopt};
    }
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
