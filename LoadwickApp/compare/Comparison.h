#pragma once

#include <span>
#include <vector>

#include "charts/BarGeometry.h"
#include "history/RecordedScan.h"
#include "history/ScanHistory.h"

namespace Loadwick {

/// Every scanned repository beside the others, worked out once for all that the Compare page shows.
struct Comparison
{
    std::vector<LeaderboardEntry> leaderboard; ///< the heaviest first
    std::vector<RecordedScan> columns;         ///< each repository's latest scan, by name
    BarGeometry bars;                          ///< of the columns, in their order

    [[nodiscard]] static Comparison of(std::span<const RecordedScan> history);
};

} // namespace Loadwick
