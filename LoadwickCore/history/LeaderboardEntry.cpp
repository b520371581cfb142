#include "history/LeaderboardEntry.h"

#include "text/CheckedSum.h"

namespace Loadwick {

std::optional<TrendDirection> LeaderboardEntry::trend() const noexcept
{
    if (!previousTotal)
        return std::nullopt;
    if (latest.total == *previousTotal)
        return TrendDirection::flat;
    return latest.total > *previousTotal ? TrendDirection::up : TrendDirection::down;
}

std::optional<std::int64_t> LeaderboardEntry::delta() const noexcept
{
    if (!previousTotal)
        return std::nullopt;
    return checkedDifference(latest.total, *previousTotal);
}

} // namespace Loadwick
