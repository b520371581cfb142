#include "probe/SlabParser.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>

#include "text/TextLines.h"
#include "text/UnicodeText.h"

namespace Loadwick::SlabParser {

namespace {

constexpr char blank = ' ';

/// No code point of more than this many bytes becomes an ASCII letter in lower case.
constexpr std::size_t longestLetter = 4;

constexpr bool isBlank(char byte) noexcept
{
    return byte == blank;
}

constexpr bool isBlankOrTab(char byte) noexcept
{
    return byte == blank || byte == '\t';
}

constexpr bool isDecoration(char byte) noexcept
{
    return byte == '-' || byte == '*' || byte == '`' || byte == '>' || byte == blank;
}

/// `text` without unwanted bytes at either end.
template<typename Test>
std::string_view stripped(std::string_view text, Test isUnwanted) noexcept
{
    while (!text.empty() && isUnwanted(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isUnwanted(text.back()))
        text.remove_suffix(1);
    return text;
}

/// Takes the first word off `rest`, which begins with no blank.
std::string_view takeFirstWord(std::string_view &rest) noexcept
{
    const std::string_view word = rest.substr(0, rest.find(blank));
    rest.remove_prefix(word.size());
    return word;
}

/// Takes the last word and the blanks after it off `rest`; empty when there is none.
std::string_view takeLastWord(std::string_view &rest) noexcept
{
    while (rest.ends_with(blank))
        rest.remove_suffix(1);
    const std::string_view word = rest.substr(rest.rfind(blank) + 1);
    rest.remove_suffix(word.size());
    return word;
}

/// Whether a word is a keyword in any letter case. A letter beyond ASCII takes more bytes than the
/// ASCII letter that it becomes, so a word of the keyword's size is ASCII or no keyword.
bool isKeyword(std::string_view word, std::string_view keyword)
{
    const auto isSame = [](char letter, char lower) {
        return letter == lower || (letter >= 'A' && letter <= 'Z' && letter - 'A' + 'a' == lower);
    };
    if (word.size() <= keyword.size())
        return std::equal(word.begin(), word.end(), keyword.begin(), keyword.end(), isSame);
    return word.size() <= longestLetter * keyword.size() && lowercased(word) == keyword;
}

/// The number in a word of digits, commas and underscores.
std::optional<std::int64_t> countIn(std::string_view word) noexcept
{
    std::int64_t count = 0;
    bool isEmpty = true;
    for (const char byte : word) {
        if (byte == ',' || byte == '_')
            continue;
        if (byte < '0' || byte > '9' || __builtin_mul_overflow(count, 10, &count) ||
            __builtin_add_overflow(count, byte - '0', &count))
            return std::nullopt;
        isEmpty = false;
    }
    return isEmpty ? std::nullopt : std::optional(count);
}

std::string joinedByBlanks(std::string_view words)
{
    std::string joined(stripped(words, isBlank));
    const auto areBlanks = [](char left, char right) { return left == blank && right == blank; };
    joined.erase(std::unique(joined.begin(), joined.end(), areBlanks), joined.end());
    return joined;
}

} // namespace

std::vector<SelfReportedSlab> parse(std::string_view text)
{
    std::vector<SelfReportedSlab> slabs;
    while (const auto line = takeLine(text))
        if (auto slab = parseLine(*line))
            slabs.push_back(std::move(*slab));
    return slabs;
}

std::optional<SelfReportedSlab> parseLine(std::string_view line)
{
    std::string_view rest = stripped(stripped(line, isBlankOrTab), isDecoration);
    if (!isKeyword(takeFirstWord(rest), "slab"))
        return std::nullopt;
    // The last "tokens" counts, so that a name may hold the word.
    std::string_view follower;
    std::string_view word = takeLastWord(rest);
    while (!word.empty() && !isKeyword(word, "tokens")) {
        follower = word;
        word = takeLastWord(rest);
    }
    const auto count = word.empty() ? std::nullopt : countIn(follower);
    std::string name = joinedByBlanks(rest);
    if (!count || name.empty())
        return std::nullopt;
    return SelfReportedSlab{.name = std::move(name), .tokens = *count};
}

} // namespace Loadwick::SlabParser
