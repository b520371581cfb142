#pragma once

#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string_view>

#include <nlohmann/json.hpp>

#include "json/JsonTree.h"

namespace Loadwick {

/// Reads `text` as one JSON document (RFC 8259, strict UTF-8; white space around it is allowed) and
/// gives its top-level object, reduced to the members named by `keptPaths`. A path is one key, or
/// keys joined by dots ("message.usage"); what stands at a path is kept whole, all else is checked
/// and dropped, so that the memory used does not grow with what nobody asked for. Of a key that
/// occurs twice the last one wins. Nothing when the text is not JSON or its top level no object.
[[nodiscard]] std::optional<JsonTree> jsonObject(std::string_view text,
                                                 std::initializer_list<std::string_view> keptPaths);

/// The same for paths at which texts, numbers and Booleans are looked for: an array or object that
/// stands there counts as absent, so that the memory used does not grow with it either.
[[nodiscard]] std::optional<JsonTree>
jsonObjectOfScalars(std::string_view text, std::initializer_list<std::string_view> keptPaths);

/// The member of an object, or null when `object` is no object or has no such key.
[[nodiscard]] const nlohmann::json *member(const nlohmann::json &object, std::string_view key);

/// The one rule for "converts exactly to an integer": a JSON number written without fraction and
/// exponent that fits 64 bits. Booleans, text, null and a null pointer give nothing.
[[nodiscard]] std::optional<std::int64_t> exactInteger(const nlohmann::json *value);

} // namespace Loadwick
