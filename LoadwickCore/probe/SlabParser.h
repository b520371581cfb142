#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Loadwick {

/// One startup-context category as the session reported it about itself: an estimate.
struct SelfReportedSlab
{
    std::string name;    ///< as written, words joined by single blanks
    std::int64_t tokens; ///< 0 or more

    friend bool operator==(const SelfReportedSlab &, const SelfReportedSlab &) = default;
};

} // namespace Loadwick

/// Reads lines of the form "SLAB <category name> TOKENS <integer>" out of a session's answer.
/// Lenient about decoration (bullets, quotes, backticks, letter case, digit grouping), strict about
/// the rest: a line that does not fit is dropped silently.
namespace Loadwick::SlabParser {

/// The slabs of all lines that fit, in order; repeated names stay. Lines end at every Unicode
/// line break.
[[nodiscard]] std::vector<SelfReportedSlab> parse(std::string_view text);

/// The slab of one line, or nothing.
[[nodiscard]] std::optional<SelfReportedSlab> parseLine(std::string_view line);

} // namespace Loadwick::SlabParser
