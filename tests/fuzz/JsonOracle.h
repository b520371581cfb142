#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include <nlohmann/json.hpp>

namespace Loadwick {

/// A document as nlohmann-json parses it, complete; our reader keeps only parts.
struct JsonOracle
{
    /// False where the two rightly differ: the library reads a NUL as the end and skips a byte
    /// order mark, both of which RFC 8259 does not know, and refuses a number out of a double's
    /// range.
    bool isJudge;
    std::optional<nlohmann::json> object; ///< nothing when the document is not a JSON object

    /// White space around the document is allowed. Half a surrogate pair counts as U+FFFD.
    [[nodiscard]] static JsonOracle of(std::string_view document);

    /// The member `key` of a value; null when that has none.
    [[nodiscard]] static const nlohmann::json *find(const nlohmann::json *value, const char *key);

    /// An integer that fits 64 bits; nothing for every other value.
    [[nodiscard]] static std::optional<std::int64_t> integer(const nlohmann::json *value);

    /// A text; nothing for every other value.
    [[nodiscard]] static std::optional<std::string> text(const nlohmann::json *value);
};

} // namespace Loadwick
