#include "probe/SlabParser.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <string>

#include "probe/TextLines.h"
#include "probe/UnicodeText.h"

namespace Loadwick::SlabParser {

namespace {

constexpr std::string_view decoration = "-*`> ";
constexpr char blank = ' ';

/// No code point of more than this many bytes becomes an ASCII letter in lower case.
constexpr std::size_t longestLetter = 4;

std::string_view withoutDecoration(std::string_view line) noexcept
{
    const std::size_t first = line.find_first_not_of(decoration);
    if (first == std::string_view::npos)
        return {};
    return line.substr(first, line.find_last_not_of(decoration) - first + 1);
}

std::string_view withoutBlanksAtTheEnd(std::string_view text) noexcept
{
    return text.substr(0, text.find_last_not_of(blank) + 1);
}

/// Takes the first word off `rest`, and the blanks before it; empty when there is none.
std::string_view takeFirstWord(std::string_view &rest) noexcept
{
    rest.remove_prefix(std::min(rest.find_first_not_of(blank), rest.size()));
    const std::string_view word = rest.substr(0, rest.find(blank));
    rest.remove_prefix(word.size());
    return word;
}

/// The same from the end.
std::string_view takeLastWord(std::string_view &rest) noexcept
{
    rest = withoutBlanksAtTheEnd(rest);
    const std::size_t before = rest.find_last_of(blank);
    const std::string_view word = rest.substr(before == std::string_view::npos ? 0 : before + 1);
    rest.remove_suffix(word.size());
    return word;
}

/// Whether a word is a keyword in lower case. A letter beyond ASCII takes more bytes than the one
/// that it becomes, so a word of the keyword's size is ASCII or no keyword.
bool isKeyword(std::string_view word, std::string_view keyword)
{
    const auto isSame = [](char letter, char lower) {
        return letter == lower || (letter >= 'A' && letter <= 'Z' && letter - 'A' + 'a' == lower);
    };
    if (word.size() <= keyword.size())
        return std::equal(word.begin(), word.end(), keyword.begin(), keyword.end(), isSame);
    return word.size() <= longestLetter * keyword.size() && lowercased(word) == keyword;
}

std::optional<std::int64_t> countIn(std::string_view word)
{
    std::string digits(word);
    std::erase_if(digits, [](char byte) { return byte == ',' || byte == '_'; });
    if (digits.empty() || digits.find_first_not_of("0123456789") != std::string::npos)
        return std::nullopt;
    std::int64_t count = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), count);
    return error == std::errc() ? std::optional(count) : std::nullopt;
}

std::string joinedByBlanks(std::string_view words)
{
    constexpr std::string_view twoBlanks = "  ";
    words =
        withoutBlanksAtTheEnd(words.substr(std::min(words.find_first_not_of(blank), words.size())));
    if (words.find(twoBlanks) == std::string_view::npos)
        return std::string(words);
    std::string joined;
    joined.reserve(words.size());
    for (std::string_view word = takeFirstWord(words); !word.empty(); word = takeFirstWord(words)) {
        if (!joined.empty())
            joined.push_back(blank);
        joined.append(word);
    }
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
    std::string_view rest = withoutDecoration(trimmedBlanks(line));
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
