#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <vector>

#include "fuzz/FuzzTarget.h"
#include "probe/SlabParser.h"
#include "text/TextLines.h"
#include "text/UnicodeText.h"

namespace Loadwick {

namespace {

std::string_view stripped(std::string_view text, std::string_view characters)
{
    while (!text.empty() && characters.find(text.front()) != std::string_view::npos)
        text.remove_prefix(1);
    while (!text.empty() && characters.find(text.back()) != std::string_view::npos)
        text.remove_suffix(1);
    return text;
}

std::vector<std::string> wordsOf(std::string_view line)
{
    std::vector<std::string> words(1);
    for (const char character : line) {
        if (character != ' ')
            words.back() += character;
        else if (!words.back().empty())
            words.emplace_back();
    }
    if (words.back().empty())
        words.pop_back();
    return words;
}

/// Digit by digit, so that overflow is detected before it happens.
std::optional<std::int64_t> countOf(const std::string &word)
{
    constexpr std::int64_t largest = std::numeric_limits<std::int64_t>::max();
    std::optional<std::int64_t> count;
    for (const char character : word) {
        if (character == ',' || character == '_')
            continue;
        const int digit = character - '0';
        if (digit < 0 || digit > 9 || count.value_or(0) > (largest - digit) / 10)
            return std::nullopt;
        count = count.value_or(0) * 10 + digit;
    }
    return count;
}

/// A line by the rules in words: first all of its words, then their positions.
std::optional<SelfReportedSlab> expectedSlab(std::string_view line)
{
    const std::vector<std::string> words = wordsOf(stripped(stripped(line, " \t"), "-*`> "));
    std::size_t last = words.size();
    for (std::size_t index = 0; index < words.size(); ++index)
        if (lowercased(words[index]) == "tokens")
            last = index;
    if (words.size() < 4 || lowercased(words[0]) != "slab" || last < 2 || last + 1 >= words.size())
        return std::nullopt;
    const auto count = countOf(words[last + 1]);
    std::string name = words[1];
    for (std::size_t index = 2; index < last; ++index)
        name += " " + words[index];
    return count ? std::optional(SelfReportedSlab{.name = name, .tokens = *count}) : std::nullopt;
}

void checkSlabText(std::string_view input)
{
    std::vector<SelfReportedSlab> expected;
    std::int64_t lineCount = 0;
    std::int64_t leastUnread = 0;
    std::string_view rest = input;
    while (const auto line = takeLine(rest)) {
        if (const auto slab = expectedSlab(*line))
            expected.push_back(*slab);
        else if (!lettersAndNumbers(*line).empty() && line->find_first_of("`~") == line->npos)
            ++leastUnread;
        ++lineCount;
    }
    const auto [slabs, counted] = SlabParser::read(input);
    require(slabs == expected, "the slabs are those of the rules");
    require(counted.read == static_cast<std::int64_t>(expected.size()), "each is one line");
    require(counted.unread >= leastUnread, "every other line with words is counted");
    require(counted.read + counted.unread <= lineCount, "no line is counted twice");
    for (const SelfReportedSlab &slab : expected)
        require(SlabParser::parseLine("SLAB " + slab.name + " TOKENS " +
                                      std::to_string(slab.tokens)) == slab,
                "a slab round-trips");
}

const FuzzTarget target("SlabText", checkSlabText);

} // namespace

} // namespace Loadwick
