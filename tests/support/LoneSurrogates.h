#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace Loadwick {

/// A JSON document with an escaped U+FFFD in place of every escaped half of a surrogate pair, for
/// the library that refuses those.
[[nodiscard]] inline std::string withoutLoneSurrogates(std::string_view document)
{
    constexpr std::size_t length = 6; // \uD83D
    std::string text(document);
    const auto isEscape = [&](std::size_t index, std::string_view thirdDigits) {
        const std::string escape = text.substr(index, length);
        return escape.size() == length && escape.starts_with("\\u") &&
               (escape[2] == 'd' || escape[2] == 'D') &&
               thirdDigits.find(escape[3]) != std::string_view::npos &&
               escape.find_first_not_of("0123456789abcdefABCDEF", 2) == std::string::npos;
    };
    for (std::size_t index = text.find('\\'); index < text.size(); index = text.find('\\', index)) {
        const bool isHigh = isEscape(index, "89abAB");
        if (isHigh && isEscape(index + length, "cdefCDEF"))
            index += 2 * length;
        else if (isHigh || isEscape(index, "cdefCDEF"))
            text.replace(index, length, "\\uFFFD");
        else
            index += 2; // another escape, which may be that of a backslash
    }
    return text;
}

} // namespace Loadwick
