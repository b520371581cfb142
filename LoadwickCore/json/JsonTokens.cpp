#include "json/JsonTokens.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <utility>

namespace Loadwick {

namespace {

constexpr std::string_view escapes = "\"\\/bfnrt";
constexpr std::string_view meanings = "\"\\/\b\f\n\r\t";
constexpr std::size_t unitLength = 6; // \uXXXX

constexpr bool isJsonSpace(char byte) noexcept
{
    return byte == ' ' || byte == '\t' || byte == '\n' || byte == '\r';
}

bool isHighSurrogate(char32_t unit) noexcept
{
    return unit >= 0xD800 && unit < 0xDC00;
}

bool isLowSurrogate(char32_t unit) noexcept
{
    return unit >= 0xDC00 && unit < 0xE000;
}

/// The UTF-16 code unit that is escaped at `index`.
std::optional<char32_t> unitAt(std::string_view text, std::size_t index) noexcept
{
    const std::string_view escape = text.substr(index, unitLength);
    if (escape.size() < unitLength || !escape.starts_with("\\u"))
        return std::nullopt;
    std::uint32_t value = 0;
    const char *end = escape.data() + escape.size();
    const auto [stop, error] = std::from_chars(escape.data() + 2, end, value, 16);
    if (error != std::errc() || stop != end)
        return std::nullopt;
    return static_cast<char32_t>(value);
}

struct Character
{
    char32_t value;
    std::size_t length; // bytes of its escape
};

/// The character escaped at `index` as one code unit or a surrogate pair; U+FFFD for half a pair,
/// which JavaScript writes when it cuts a text.
std::optional<Character> characterAt(std::string_view text, std::size_t index) noexcept
{
    const auto first = unitAt(text, index);
    if (!first)
        return std::nullopt;
    if (!isHighSurrogate(*first) && !isLowSurrogate(*first))
        return Character{*first, unitLength};
    const auto second = unitAt(text, index + unitLength);
    if (isHighSurrogate(*first) && second && isLowSurrogate(*second))
        return Character{0x10000 + ((*first - 0xD800) << 10) + (*second - 0xDC00), 2 * unitLength};
    return Character{0xFFFD, unitLength};
}

/// Bytes of the escape at `index`; 0 when it is none.
std::size_t escapeLength(std::string_view text, std::size_t index) noexcept
{
    if (index + 1 >= text.size())
        return 0;
    if (escapes.find(text[index + 1]) != std::string_view::npos)
        return 2;
    const auto character = characterAt(text, index);
    return character ? character->length : 0;
}

void appendUtf8(std::string &text, char32_t value)
{
    const auto append = [&](char32_t bits) { text.push_back(static_cast<char>(bits)); };
    const auto appendTail = [&](unsigned shift) { append(0x80 | ((value >> shift) & 0x3F)); };
    if (value < 0x80) {
        append(value);
        return;
    }
    if (value < 0x800) {
        append(0xC0 | (value >> 6));
    } else {
        if (value < 0x10000) {
            append(0xE0 | (value >> 12));
        } else {
            append(0xF0 | (value >> 18));
            appendTail(12);
        }
        appendTail(6);
    }
    appendTail(0);
}

/// Index of the quotation mark that ends the string whose first character is at `start`.
std::optional<std::size_t> stringEnd(std::string_view text, std::size_t start) noexcept
{
    for (std::size_t index = start; index < text.size();) {
        const char byte = text[index];
        if (byte == '"')
            return index;
        if (static_cast<unsigned char>(byte) < 0x20)
            return std::nullopt;
        const std::size_t length = byte == '\\' ? escapeLength(text, index) : 1;
        if (length == 0)
            return std::nullopt;
        index += length;
    }
    return std::nullopt;
}

template<typename Number>
std::optional<JsonValue> numberAs(std::string_view literal)
{
    Number number{};
    const char *const last = literal.data() + literal.size();
    const auto [end, error] = std::from_chars(literal.data(), last, number);
    if (error != std::errc() || end != last)
        return std::nullopt;
    return JsonValue(number);
}

} // namespace

void JsonTokens::skipSpace() noexcept
{
    // A plain loop: find_first_not_of calls memchr for each byte: a seventh of the whole parse.
    while (m_index < m_text.size() && isJsonSpace(m_text[m_index]))
        ++m_index;
}

bool JsonTokens::take(char byte) noexcept
{
    if (isAtEnd() || m_text[m_index] != byte)
        return false;
    ++m_index;
    return true;
}

bool JsonTokens::takeWord(std::string_view word) noexcept
{
    if (m_text.substr(m_index, word.size()) != word)
        return false;
    m_index += word.size();
    return true;
}

bool JsonTokens::takeDigits() noexcept
{
    const std::size_t start = m_index;
    m_index = std::min(m_text.find_first_not_of("0123456789", m_index), m_text.size());
    return m_index > start;
}

std::optional<std::string_view> JsonTokens::takeNumber() noexcept
{
    const std::size_t start = m_index;
    take('-');
    if (!take('0') && !takeDigits())
        return std::nullopt;
    if (take('.') && !takeDigits())
        return std::nullopt;
    if (take('e') || take('E')) {
        if (!take('+'))
            take('-');
        if (!takeDigits())
            return std::nullopt;
    }
    return m_text.substr(start, m_index - start);
}

std::optional<std::string_view> JsonTokens::takeString() noexcept
{
    if (!take('"'))
        return std::nullopt;
    const auto end = stringEnd(m_text, m_index);
    if (!end)
        return std::nullopt;
    const std::string_view literal = m_text.substr(m_index, *end - m_index);
    m_index = *end + 1;
    return literal;
}

std::string jsonStringText(std::string_view literal)
{
    std::string text;
    text.reserve(literal.size());
    while (!literal.empty()) {
        const std::size_t plain = std::min(literal.find('\\'), literal.size());
        text.append(literal.substr(0, plain));
        literal.remove_prefix(plain);
        if (literal.empty())
            break;
        if (const auto character = characterAt(literal, 0)) {
            appendUtf8(text, character->value);
            literal.remove_prefix(character->length);
        } else {
            text.push_back(meanings[escapes.find(literal[1])]);
            literal.remove_prefix(2);
        }
    }
    return text;
}

JsonValue jsonNumber(std::string_view literal)
{
    if (auto integer = numberAs<std::int64_t>(literal))
        return std::move(*integer);
    return numberAs<double>(literal).value_or(JsonValue());
}

} // namespace Loadwick
