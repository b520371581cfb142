#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include <QString>

#include "charts/BarGeometry.h"
#include "history/ScanHistory.h"
#include "text/TextLocale.h"

namespace Loadwick {

/// All scanned repositories side by side, computed once for the whole Compare page.
struct Comparison
{
    std::vector<LeaderboardEntry> leaderboard; ///< the heaviest first
    std::vector<RecordedScan> columns;         ///< each repository's latest scan, by name
    BarGeometry bars;                          ///< of the columns, in their order

    [[nodiscard]] static Comparison of(std::span<const RecordedScan> history);
};

/// The words of one bar.
namespace BarText {

/// The figure beside the bar; a dash if the category was not recorded.
[[nodiscard]] QString value(std::optional<std::int64_t> tokens, const TextLocale &locale);

/// The whole bar for a screen reader. `name` is the bar's category or repository.
[[nodiscard]] QString spoken(const QString &name, std::optional<std::int64_t> tokens,
                             const TextLocale &locale);

} // namespace BarText
} // namespace Loadwick
