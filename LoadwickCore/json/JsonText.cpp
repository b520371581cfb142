#include "json/JsonText.h"

#include <limits>
#include <string>

#include "text/UnicodeText.h"
#include "json/JsonReader.h"

namespace Loadwick {

namespace {

std::optional<JsonTree> selectedPartsOf(std::string_view text, const JsonSelection &selection)
{
    const std::string_view document = trimmed(text);
    if (!isUtf8(document))
        return std::nullopt;
    return JsonReader(document, selection).readObject();
}

} // namespace

std::optional<JsonTree> jsonObject(std::string_view text,
                                   std::initializer_list<std::string_view> keptPaths)
{
    return selectedPartsOf(text, JsonSelection::ofPaths(keptPaths));
}

std::optional<JsonTree> jsonObjectOfScalars(std::string_view text,
                                            std::initializer_list<std::string_view> keptPaths)
{
    return selectedPartsOf(text, JsonSelection::ofPaths(keptPaths, JsonSelection::Values::scalars));
}

const nlohmann::json *member(const nlohmann::json &object, std::string_view key)
{
    if (!object.is_object())
        return nullptr;
    const auto found = object.find(key);
    return found == object.end() ? nullptr : &*found;
}

std::optional<std::int64_t> exactInteger(const nlohmann::json *value)
{
    constexpr std::uint64_t largest = std::numeric_limits<std::int64_t>::max();
    if (value == nullptr || !value->is_number_integer())
        return std::nullopt;
    if (value->is_number_unsigned() && value->get<std::uint64_t>() > largest)
        return std::nullopt;
    return value->get<std::int64_t>();
}

} // namespace Loadwick
