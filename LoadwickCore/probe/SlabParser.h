#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "probe/SelfReportedSlab.h"

/// Reads lines of the form "SLAB <category name> TOKENS <integer>" out of a session's answer.
/// Forgiving about decoration (bullets, quotes, backticks, letter case, digit grouping), strict
/// about the rest: a line that does not fit is dropped without a word.
namespace Loadwick::SlabParser {

/// The slabs of all lines that fit, in order; repeated names stay. Lines end at every Unicode
/// line break.
[[nodiscard]] std::vector<SelfReportedSlab> parse(std::string_view text);

/// The slab of one line, or nothing.
[[nodiscard]] std::optional<SelfReportedSlab> parseLine(std::string_view line);

} // namespace Loadwick::SlabParser
