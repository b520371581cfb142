#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace Loadwick {

struct JsonMember;

/// A value of a JSON document (RFC 8259). Its destructor allocates nothing and does not recurse,
/// however large and deep the value is.
class JsonValue
{
public:
    using Array = std::vector<JsonValue>;
    using Object =
        std::vector<JsonMember>; ///< in the order of the document, duplicate keys included

    /// A number is an `std::int64_t` when it was written as an integer that fits, else a `double`.
    using Content =
        std::variant<std::nullptr_t, bool, std::int64_t, double, std::string, Array, Object>;

    JsonValue() noexcept; ///< null
    explicit JsonValue(Content content) noexcept;
    ~JsonValue();

    JsonValue(JsonValue &&other) noexcept;
    JsonValue &operator=(JsonValue &&other) noexcept;
    JsonValue(const JsonValue &) = delete;
    JsonValue &operator=(const JsonValue &) = delete;

    /// The content if it is of this kind, else null.
    template<typename Kind>
    [[nodiscard]] const Kind *as() const noexcept
    {
        return std::get_if<Kind>(&m_content);
    }

    template<typename Kind>
    [[nodiscard]] Kind *as() noexcept
    {
        return std::get_if<Kind>(&m_content);
    }

private:
    [[nodiscard]] JsonValue *lastChild() noexcept;
    void dropLastChild() noexcept;
    void dismantle() noexcept;

    Content m_content;
};

struct JsonMember
{
    std::string key;
    JsonValue value;
};

/// The member of an object, or null if `object` is not an object or lacks the key. The last of
/// duplicate keys wins.
[[nodiscard]] const JsonValue *member(const JsonValue &object, std::string_view key) noexcept;
[[nodiscard]] JsonValue *member(JsonValue &object, std::string_view key) noexcept;

/// The text of a string; null for every other value and for a null pointer.
[[nodiscard]] const std::string *textOf(const JsonValue *value) noexcept;

/// The one rule for "converts exactly to an integer": a JSON number written without fraction and
/// exponent that fits 64 bits. Nothing for every other value and for a null pointer.
[[nodiscard]] std::optional<std::int64_t> exactInteger(const JsonValue *value) noexcept;

} // namespace Loadwick
