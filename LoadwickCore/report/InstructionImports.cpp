#include "report/InstructionImports.h"

#include <algorithm>
#include <cstdint>

#include <unicode/utf8.h>

#include "text/UnicodeText.h"

namespace Loadwick::InstructionImports {

namespace {

constexpr std::size_t markerLength = 3;
constexpr char sign = '@';

/// The three characters that open or close a fence at the head of a line, or nothing.
std::string_view fenceMarker(std::string_view line) noexcept
{
    while (line.starts_with(' ') || line.starts_with('\t'))
        line.remove_prefix(1);
    const bool isMarker = line.starts_with("```") || line.starts_with("~~~");
    return isMarker ? line.substr(0, markerLength) : std::string_view{};
}

struct Character
{
    bool isSpace;
    std::size_t end;
};

Character characterAt(std::string_view text, std::size_t start) noexcept
{
    UChar32 value = 0;
    std::size_t index = start;
    U8_NEXT(reinterpret_cast<const std::uint8_t *>(text.data()), index, text.size(), value);
    return {value >= 0 && isWhiteSpace(static_cast<char32_t>(value)), index};
}

/// Index of the first character from `start` on that is white space (or is not); the end if none.
std::size_t firstCharacter(std::string_view text, std::size_t start, bool (*isWanted)(Character))
{
    while (start < text.size()) {
        const Character character = characterAt(text, start);
        if (isWanted(character))
            break;
        start = character.end;
    }
    return start;
}

std::string_view withoutClosingPunctuation(std::string_view token) noexcept
{
    const std::size_t last = token.find_last_not_of(".,;:!?)]}\"'`");
    return token.substr(0, last == std::string_view::npos ? 0 : last + 1);
}

bool isImport(std::string_view token) noexcept
{
    return !token.empty() && token.front() != sign && token.find("://") == std::string_view::npos;
}

void addTokens(std::vector<std::string_view> &tokens, std::string_view line)
{
    for (std::size_t end = 0; end < line.size();) {
        const std::size_t start =
            firstCharacter(line, end, [](Character character) { return !character.isSpace; });
        end = firstCharacter(line, start, [](Character character) { return character.isSpace; });
        const std::string_view word = line.substr(start, end - start);
        if (!word.starts_with(sign))
            continue;
        const std::string_view token = withoutClosingPunctuation(word.substr(1));
        if (isImport(token))
            tokens.push_back(token);
    }
}

} // namespace

std::vector<std::string_view> tokensIn(std::string_view text)
{
    std::vector<std::string_view> tokens;
    text = withoutByteOrderMark(text);
    std::size_t nextSign = text.find(sign);
    if (nextSign == std::string_view::npos)
        return tokens;
    std::string_view openMarker;
    std::size_t countBeforeFence = 0;
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = std::min(text.find('\n', start), text.size());
        const std::string_view line = text.substr(start, end - start);
        start = end + 1;
        const std::string_view marker = fenceMarker(line);
        if (!openMarker.empty() && marker == openMarker) {
            tokens.resize(countBeforeFence);
            openMarker = {};
            continue;
        }
        if (openMarker.empty() && !marker.empty()) {
            openMarker = marker;
            countBeforeFence = tokens.size();
        }
        if (nextSign < end) {
            addTokens(tokens, line);
            nextSign = text.find(sign, end);
        }
    }
    return tokens;
}

std::vector<std::string_view> tokensInLine(std::string_view line)
{
    std::vector<std::string_view> tokens;
    addTokens(tokens, line);
    return tokens;
}

} // namespace Loadwick::InstructionImports
