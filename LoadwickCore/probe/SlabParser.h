#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Loadwick {

/// One startup-context category as the session reported it about itself: an estimate.
struct SelfReportedSlab
{
    std::string name;    ///< as written, words joined by single spaces
    std::int64_t tokens; ///< 0 or more

    friend bool operator==(const SelfReportedSlab &, const SelfReportedSlab &) = default;
};

/// The slabs of one answer, in order. They share one text of names: a list of strings would take
/// several times the memory of an answer with millions of lines.
class SelfReportedSlabs
{
public:
    SelfReportedSlabs() = default;
    SelfReportedSlabs(const std::vector<SelfReportedSlab> &slabs);

    /// Makes room for every slab of an answer of `byteCount` bytes. Room that stays unused costs
    /// addresses, not memory.
    void reserveForAnswer(std::size_t byteCount);

    /// Adds a slab whose name is `words`, joined by single spaces.
    void add(std::string_view words, std::int64_t tokens);

    [[nodiscard]] std::size_t size() const noexcept { return m_slabs.size(); }
    [[nodiscard]] bool empty() const noexcept { return m_slabs.empty(); }

    /// A view into the slabs' own text.
    [[nodiscard]] std::string_view name(std::size_t index) const;
    [[nodiscard]] std::int64_t tokens(std::size_t index) const { return m_slabs.at(index).tokens; }

    friend bool operator==(const SelfReportedSlabs &, const SelfReportedSlabs &) = default;

private:
    struct Slab
    {
        std::size_t nameEnd; ///< in `m_names`, where the name of the next one begins
        std::int64_t tokens;

        friend bool operator==(const Slab &, const Slab &) = default;
    };

    std::string m_names;
    std::vector<Slab> m_slabs;
};

/// How many lines of an answer are slabs, and how many say something else. Blank lines and the
/// markers of code fences are neither.
struct AnswerLines
{
    std::int64_t read = 0;
    std::int64_t unread = 0;

    friend bool operator==(const AnswerLines &, const AnswerLines &) = default;
};

} // namespace Loadwick

/// Reads lines of the form "SLAB <category name> TOKENS <integer>" out of a session's answer.
/// Lenient about decoration (bullets, quotes, backticks, letter case, digit grouping), strict about
/// the rest: a line that does not fit is neither a slab nor an error.
namespace Loadwick::SlabParser {

struct Answer
{
    SelfReportedSlabs slabs;
    AnswerLines lines;
};

/// The slabs of all lines that fit, in order, and the number of lines. Repeated names stay. Lines
/// end at every Unicode line break. Takes at most 1.1 times the memory of `text`.
[[nodiscard]] Answer read(std::string_view text);

/// Only the slabs.
[[nodiscard]] SelfReportedSlabs parse(std::string_view text);

/// The slab of one line, or nothing.
[[nodiscard]] std::optional<SelfReportedSlab> parseLine(std::string_view line);

} // namespace Loadwick::SlabParser
