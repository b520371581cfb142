#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "json/JsonValue.h"

namespace Loadwick {

/// Walks over the tokens of a JSON document (RFC 8259), which may be a gigabyte long: a token is
/// checked where it is and never copied. A call that finds no such token stays where it is, or
/// inside a broken one.
class JsonTokens
{
public:
    /// `document` must outlive the tokens and be UTF-8; that is not checked here.
    explicit JsonTokens(std::string_view document) noexcept : m_text(document) {}

    [[nodiscard]] bool isAtEnd() const noexcept { return m_index == m_text.size(); }

    /// The next byte; NUL, which begins no token, at the end.
    [[nodiscard]] char next() const noexcept { return isAtEnd() ? '\0' : m_text[m_index]; }

    void skipSpace() noexcept;
    bool take(char byte) noexcept;
    [[nodiscard]] bool takeWord(std::string_view word) noexcept;

    /// A number as it is written.
    [[nodiscard]] std::optional<std::string_view> takeNumber() noexcept;

    /// A string as it is written between its quotation marks. Nothing if it has no end, or holds a
    /// control character, an unknown escape or half a surrogate pair.
    [[nodiscard]] std::optional<std::string_view> takeString() noexcept;

private:
    bool takeDigits() noexcept;

    std::string_view m_text;
    std::size_t m_index = 0;
};

/// The text of a string that `JsonTokens::takeString` gave. Never longer than `literal`.
[[nodiscard]] std::string jsonStringText(std::string_view literal);

/// The number that `JsonTokens::takeNumber` gave; null beyond the range of a `double`.
[[nodiscard]] JsonValue jsonNumber(std::string_view literal);

} // namespace Loadwick
