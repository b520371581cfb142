#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "history/RecordedScan.h"

namespace Loadwick {

/// How a repository's total changed from one scan to the next. A single token counts.
enum class TrendDirection
{
    up,
    down,
    flat
};

[[nodiscard]] TrendDirection trendDirection(std::int64_t before, std::int64_t after) noexcept;

/// One repository among all that have been scanned.
struct LeaderboardEntry
{
    RecordedScan latest;
    std::optional<std::int64_t> previousTotal; ///< tokens; nothing for the first scan
    std::int64_t scanCount;                    ///< at least 1

    /// From the previous total to the latest; nothing for the first scan.
    [[nodiscard]] std::optional<TrendDirection> trend() const noexcept;

    /// The latest total minus the previous one; nothing for the first scan. Overflow ends the
    /// program.
    [[nodiscard]] std::optional<std::int64_t> delta() const noexcept;

    friend bool operator==(const LeaderboardEntry &, const LeaderboardEntry &) = default;
};

} // namespace Loadwick

/// Queries over a list of recorded scans, in any order unless said otherwise. A repository is
/// identified by its path alone; names and paths are compared byte by byte. Every order is total.
namespace Loadwick::ScanHistory {

/// `scans` without those that would make a sum of the others overflow, which a file may hold. In
/// the order of the list, a scan is left out when the tokens of its categories do not fit 64 bits
/// together with those of the scans before it, or its total differs too much from another one of
/// its repository. No sum or difference over any of the rest, in any order, overflows.
[[nodiscard]] std::vector<RecordedScan> summable(std::vector<RecordedScan> scans);

/// All scans, by date and, where dates are equal, by the text of their identifier; descending.
[[nodiscard]] std::vector<RecordedScan> newestFirst(std::span<const RecordedScan> scans);

/// The latest scan of each repository, by name and then by path; the first one where dates are
/// equal.
[[nodiscard]] std::vector<RecordedScan> latestPerRepository(std::span<const RecordedScan> scans);

/// One entry per repository, the heaviest latest total first, then by name and path. Where dates
/// are equal, the scan whose identifier's text sorts last is the latest.
[[nodiscard]] std::vector<LeaderboardEntry> leaderboard(std::span<const RecordedScan> scans);

/// The scans of one repository, in the order of the list.
[[nodiscard]] std::vector<RecordedScan> scans(std::span<const RecordedScan> scans,
                                              std::string_view repositoryPath);

/// The repository of the last scan of a list that runs from the oldest to the newest.
[[nodiscard]] std::optional<std::string>
mostRecentRepositoryPath(std::span<const RecordedScan> scans);

/// Every category name once, by the tokens of all its occurrences, the heaviest first, then by
/// name: the order in which charts and legends list categories. Overflow of a sum ends the program.
[[nodiscard]] std::vector<std::string> categoryAxis(std::span<const RecordedScan> scans);

} // namespace Loadwick::ScanHistory
