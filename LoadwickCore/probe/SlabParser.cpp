#include "probe/SlabParser.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>

#include "text/TextLines.h"
#include "text/UnicodeText.h"

namespace Loadwick {

namespace {

constexpr char space = ' ';

/// No line that is a slab is shorter, its line break included.
constexpr std::size_t shortestLine = std::string_view("SLAB a TOKENS 1\n").size();

/// No code point of more than this many bytes becomes an ASCII letter in lower case.
constexpr std::size_t longestLetter = 4;

constexpr bool isSpace(char byte) noexcept
{
    return byte == space;
}

constexpr bool isSpaceOrTab(char byte) noexcept
{
    return byte == space || byte == '\t';
}

constexpr bool isDecoration(char byte) noexcept
{
    return byte == '-' || byte == '*' || byte == '`' || byte == '>' || byte == space;
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

/// Takes the first word off `rest`, which does not begin with a space.
std::string_view takeFirstWord(std::string_view &rest) noexcept
{
    const std::string_view word = rest.substr(0, rest.find(space));
    rest.remove_prefix(word.size());
    return word;
}

/// Takes the last word and the spaces after it off `rest`; empty when there is none.
std::string_view takeLastWord(std::string_view &rest) noexcept
{
    while (rest.ends_with(space))
        rest.remove_suffix(1);
    const std::string_view word = rest.substr(rest.rfind(space) + 1);
    rest.remove_suffix(word.size());
    return word;
}

/// Whether a word is a keyword in any letter case. A letter beyond ASCII takes more bytes than the
/// ASCII letter that it becomes, so a word of the keyword's size is ASCII or not a keyword.
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

/// Appends words to `text`, joined by single spaces.
void appendWords(std::string &text, std::string_view words)
{
    const auto start = static_cast<std::ptrdiff_t>(text.size());
    text += words;
    const auto areSpaces = [](char left, char right) { return left == space && right == space; };
    text.erase(std::unique(text.begin() + start, text.end(), areSpaces), text.end());
}

/// A line that is a slab.
struct SlabLine
{
    std::string_view words; ///< its name, separated by any number of spaces
    std::int64_t tokens;
};

std::optional<SlabLine> slabIn(std::string_view line)
{
    std::string_view rest = stripped(stripped(line, isSpaceOrTab), isDecoration);
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
    const std::string_view words = stripped(rest, isSpace);
    if (!count || words.empty())
        return std::nullopt;
    return SlabLine{.words = words, .tokens = *count};
}

/// Whether a line is the marker of a code fence, with or without the name of a language.
bool isFence(std::string_view line) noexcept
{
    const std::size_t rest = line.find_first_not_of('`');
    return line.starts_with("~~~") ||
           (line.starts_with("```") && line.find('`', rest) == std::string_view::npos);
}

bool saysSomething(std::string_view line) noexcept
{
    const std::string_view words = trimmed(line);
    return !words.empty() && !isFence(words);
}

} // namespace

SelfReportedSlabs::SelfReportedSlabs(const std::vector<SelfReportedSlab> &slabs)
{
    for (const SelfReportedSlab &slab : slabs) {
        m_names += slab.name;
        m_slabs.push_back({.nameEnd = m_names.size(), .tokens = slab.tokens});
    }
}

void SelfReportedSlabs::reserveForAnswer(std::size_t byteCount)
{
    m_names.reserve(byteCount);
    m_slabs.reserve(byteCount / shortestLine + 1);
}

void SelfReportedSlabs::add(std::string_view words, std::int64_t tokens)
{
    appendWords(m_names, words);
    m_slabs.push_back({.nameEnd = m_names.size(), .tokens = tokens});
}

std::string_view SelfReportedSlabs::name(std::size_t index) const
{
    const std::size_t start = index == 0 ? 0 : m_slabs.at(index - 1).nameEnd;
    return std::string_view(m_names).substr(start, m_slabs.at(index).nameEnd - start);
}

namespace SlabParser {

Answer read(std::string_view text)
{
    Answer answer;
    answer.slabs.reserveForAnswer(text.size());
    while (const auto line = takeLine(text)) {
        if (const auto slab = slabIn(*line)) {
            answer.slabs.add(slab->words, slab->tokens);
            ++answer.lines.read;
        } else if (saysSomething(*line)) {
            ++answer.lines.unread;
        }
    }
    return answer;
}

SelfReportedSlabs parse(std::string_view text)
{
    return read(text).slabs;
}

std::optional<SelfReportedSlab> parseLine(std::string_view line)
{
    const auto found = slabIn(line);
    if (!found)
        return std::nullopt;
    SelfReportedSlab slab{.name = {}, .tokens = found->tokens};
    appendWords(slab.name, found->words);
    return slab;
}

} // namespace SlabParser

} // namespace Loadwick
