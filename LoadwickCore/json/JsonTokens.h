#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "json/JsonValue.h"

namespace Loadwick {

/// Tokenizes a JSON document (RFC 8259), which may be a gigabyte long: tokens are checked in place
/// and never copied. A call that does not find its token does not advance, or stops inside a
/// malformed one.
class JsonTokens
{
public:
    /// `document` must outlive the tokens and be valid UTF-8 (unchecked).
    explicit JsonTokens(std::string_view document) noexcept : m_text(document) {}

    [[nodiscard]] bool isAtEnd() const noexcept { return m_index == m_text.size(); }

    /// The next byte; at the end NUL, which begins no token.
    [[nodiscard]] char next() const noexcept { return isAtEnd() ? '\0' : m_text[m_index]; }

    void skipSpace() noexcept;
    bool take(char byte) noexcept;
    [[nodiscard]] bool takeWord(std::string_view word) noexcept;

    /// A number's raw text.
    [[nodiscard]] std::optional<std::string_view> takeNumber() noexcept;

    /// A string's raw text between its quotation marks. Nothing if it is unterminated, or holds a
    /// control character or an unknown escape.
    [[nodiscard]] std::optional<std::string_view> takeString() noexcept;

private:
    bool takeDigits() noexcept;

    std::string_view m_text;
    std::size_t m_index = 0;
};

/// The text of a string that `JsonTokens::takeString` returned, with U+FFFD for each half of a
/// surrogate pair. Never longer than `literal`.
[[nodiscard]] std::string jsonStringText(std::string_view literal);

/// The number that `JsonTokens::takeNumber` returned; null beyond the range of a `double`.
[[nodiscard]] JsonValue jsonNumber(std::string_view literal);

} // namespace Loadwick
