#include "json/JsonString.h"

#include <algorithm>
#include <charconv>
#include <cstdint>

namespace Loadwick {

namespace {

constexpr std::string_view escapes = "\"\\/bfnrt";
constexpr std::string_view meanings = "\"\\/\b\f\n\r\t";
constexpr std::size_t unitLength = 6; // \uXXXX

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

/// The character escaped at `index` as one code unit or a surrogate pair.
std::optional<Character> characterAt(std::string_view text, std::size_t index) noexcept
{
    const auto first = unitAt(text, index);
    if (!first || isLowSurrogate(*first))
        return std::nullopt;
    if (!isHighSurrogate(*first))
        return Character{*first, unitLength};
    const auto second = unitAt(text, index + unitLength);
    if (!second || !isLowSurrogate(*second))
        return std::nullopt;
    return Character{0x10000 + ((*first - 0xD800) << 10) + (*second - 0xDC00), 2 * unitLength};
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

} // namespace

std::optional<std::size_t> jsonStringEnd(std::string_view text, std::size_t start) noexcept
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

} // namespace Loadwick
