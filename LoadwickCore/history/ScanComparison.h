#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "history/RecordedScan.h"

namespace Loadwick {

/// One category of two scans; at least one of them has it.
struct CategoryChange
{
    enum class Side
    {
        before,
        after
    };

    std::string_view name;              ///< lives as long as the comparison
    std::optional<std::int64_t> before; ///< tokens; nothing where the earlier scan lacks it
    std::optional<std::int64_t> after;  ///< tokens; nothing where the later scan lacks it
    /// The scan that has only what is beyond the local estimate, where the other has it all.
    std::optional<Side> beyondLocalEstimate;

    /// Tokens, counting a category that a scan lacks as 0. Overflow ends the program.
    [[nodiscard]] std::int64_t difference() const noexcept;

    /// Whether both scans have it, with the same tokens.
    [[nodiscard]] bool isUnchanged() const noexcept { return before && before == after; }

    /// Whether the other scan lacks it.
    [[nodiscard]] bool isOnlyIn(Side side) const noexcept
    {
        return !(side == Side::before ? after : before);
    }

    friend bool operator==(const CategoryChange &, const CategoryChange &) = default;
};

/// What changed from one scan to another. Only the totals are authoritative: the categories need
/// not add up to them, nor their differences to the difference of the totals.
struct ScanComparison
{
    std::int64_t totalBefore;
    std::int64_t totalAfter;
    bool hasCategories;                  ///< both scans do; otherwise the rest is empty
    std::vector<CategoryChange> changes; ///< the largest difference first, then by name
    std::size_t unchangedCount;          ///< categories
    std::int64_t unchangedTokens;
    RecordedCategories categoriesBefore; ///< own the names of the changes
    RecordedCategories categoriesAfter;

    /// Categories of one scan that share a name are summed. Overflow of a sum ends the program, but
    /// no two scans of what `ScanHistory::summable` returns overflow.
    [[nodiscard]] static ScanComparison between(const RecordedScan &before,
                                                const RecordedScan &after);

    /// Overflow ends the program.
    [[nodiscard]] std::int64_t totalDifference() const noexcept;

    friend bool operator==(const ScanComparison &, const ScanComparison &) = default;
};

} // namespace Loadwick
