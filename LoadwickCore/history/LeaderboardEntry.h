#pragma once

#include <cstdint>
#include <optional>

#include "history/RecordedScan.h"
#include "history/TrendDirection.h"

namespace Loadwick {

/// One repository among all that were scanned.
struct LeaderboardEntry
{
    RecordedScan latest;
    std::optional<std::int64_t> previousTotal; ///< tokens; nothing for the first scan
    std::int64_t scanCount;                    ///< at least 1

    /// From the previous total to the latest; nothing for the first scan.
    [[nodiscard]] std::optional<TrendDirection> trend() const noexcept;

    /// Tokens that the latest total has more than the previous one; nothing for the first scan.
    /// Overflow ends the program.
    [[nodiscard]] std::optional<std::int64_t> delta() const noexcept;

    friend bool operator==(const LeaderboardEntry &, const LeaderboardEntry &) = default;
};

} // namespace Loadwick
