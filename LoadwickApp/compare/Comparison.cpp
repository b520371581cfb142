#include "compare/Comparison.h"

#include "history/ScanHistory.h"

namespace Loadwick {

Comparison Comparison::of(std::span<const RecordedScan> history)
{
    Comparison comparison{.leaderboard = ScanHistory::leaderboard(history),
                          .columns = ScanHistory::latestPerRepository(history),
                          .bars = {}};
    comparison.bars =
        BarGeometry(ScanHistory::categoryAxis(comparison.columns), comparison.columns);
    return comparison;
}

} // namespace Loadwick
