#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "probe/SelfReportedSlab.h"
#include "report/AttributionOutcome.h"
#include "report/LocalCategoryEstimate.h"

/// Splits a measured total into rows without counting a token twice: a self-reported category that
/// local estimates cover shows through them, and only its excess becomes a row of its own.
namespace Loadwick::SlabAttributor {

inline constexpr std::string_view remainderLabel = "Unattributed";
inline constexpr std::string_view unreportedCategoriesLabel =
    "Startup context (categories not self-reported)";
inline constexpr std::string_view beyondLocalEstimateSuffix = " (beyond local estimate)";

/// Overflow of a 64-bit sum ends the program; nothing else can fail.
[[nodiscard]] AttributionOutcome attribute(std::int64_t total,
                                           std::span<const SelfReportedSlab> selfReported,
                                           std::span<const LocalCategoryEstimate> localEstimates);

/// A category name in lower case, reduced to its letters and numeric characters.
[[nodiscard]] std::string normalize(std::string_view name);

/// One slab for each normalised name, at the place and under the spelling of its first occurrence,
/// with the tokens of all.
[[nodiscard]] std::vector<SelfReportedSlab> merged(std::span<const SelfReportedSlab> slabs);

} // namespace Loadwick::SlabAttributor
