#include "history/ScanHistory.h"

#include <algorithm>
#include <iterator>
#include <tuple>
#include <unordered_map>
#include <utility>

#include "text/Fatal.h"

namespace Loadwick {

TrendDirection trendDirection(std::int64_t before, std::int64_t after) noexcept
{
    if (after == before)
        return TrendDirection::flat;
    return after > before ? TrendDirection::up : TrendDirection::down;
}

std::optional<TrendDirection> LeaderboardEntry::trend() const noexcept
{
    if (!previousTotal)
        return std::nullopt;
    return trendDirection(*previousTotal, latest.total);
}

std::optional<std::int64_t> LeaderboardEntry::delta() const noexcept
{
    if (!previousTotal)
        return std::nullopt;
    return checkedDifference(latest.total, *previousTotal);
}

namespace ScanHistory {

namespace {

/// Identifiers sort as their texts do: those are fixed in length, and their digits sort as bytes.
auto dateKey(const RecordedScan &scan)
{
    return std::tie(scan.date, scan.id);
}

auto nameKey(const RecordedScan &scan)
{
    return std::tie(scan.repositoryName, scan.repositoryPath);
}

/// One repository, accumulated over the scans read so far.
struct Standing
{
    const RecordedScan *latest = nullptr;
    const RecordedScan *previous = nullptr;
    std::int64_t scanCount = 0;

    void take(const RecordedScan &scan)
    {
        ++scanCount;
        if (latest == nullptr || dateKey(scan) >= dateKey(*latest))
            previous = std::exchange(latest, &scan);
        else if (previous == nullptr || dateKey(scan) >= dateKey(*previous))
            previous = &scan;
    }

    LeaderboardEntry entry() const
    {
        return {.latest = *latest,
                .previousTotal =
                    previous != nullptr ? std::optional(previous->total) : std::nullopt,
                .scanCount = scanCount};
    }
};

bool isHeavier(const Standing &left, const Standing &right)
{
    if (left.latest->total != right.latest->total)
        return left.latest->total > right.latest->total;
    return nameKey(*left.latest) < nameKey(*right.latest);
}

/// The sums of all scans taken so far. Views into them.
class Sums
{
public:
    /// Takes a scan unless one of the sums would overflow.
    bool take(const RecordedScan &scan);

private:
    struct Range
    {
        std::int64_t lowest;
        std::int64_t highest;
    };

    Range totalsWith(const RecordedScan &scan) const
    {
        const auto known = m_totals.find(scan.repositoryPath);
        if (known == m_totals.end())
            return {scan.total, scan.total};
        const auto [lowest, highest] = known->second;
        return {std::min(lowest, scan.total), std::max(highest, scan.total)};
    }

    /// The tokens of every category without their signs: no sum of some of them, and no difference
    /// of two such sums, is larger. Nothing when they do not fit.
    std::optional<std::int64_t> magnitudeWith(const RecordedScan &scan) const
    {
        std::int64_t magnitude = m_magnitude;
        for (const auto &[name, tokens] : scan.categories)
            if (tokens < 0 ? __builtin_sub_overflow(magnitude, tokens, &magnitude)
                           : __builtin_add_overflow(magnitude, tokens, &magnitude))
                return std::nullopt;
        return magnitude;
    }

    std::int64_t m_magnitude = 0;
    std::unordered_map<std::string_view, Range> m_totals; ///< by repository
};

bool Sums::take(const RecordedScan &scan)
{
    const Range totals = totalsWith(scan);
    const auto magnitude = magnitudeWith(scan);
    std::int64_t spread = 0;
    if (!magnitude || __builtin_sub_overflow(totals.highest, totals.lowest, &spread))
        return false;
    m_magnitude = *magnitude;
    m_totals.insert_or_assign(scan.repositoryPath, totals);
    return true;
}

std::vector<RecordedScan> copies(const std::vector<const RecordedScan *> &scans)
{
    std::vector<RecordedScan> result;
    result.reserve(scans.size());
    for (const RecordedScan *scan : scans)
        result.push_back(*scan);
    return result;
}

} // namespace

std::vector<RecordedScan> summable(std::vector<RecordedScan> scans)
{
    Sums sums;
    std::vector<bool> fits;
    for (const RecordedScan &scan : scans)
        fits.push_back(sums.take(scan));
    std::vector<RecordedScan> kept;
    kept.reserve(scans.size());
    for (std::size_t index = 0; index < scans.size(); ++index)
        if (fits[index])
            kept.push_back(std::move(scans[index]));
    return kept;
}

std::vector<RecordedScan> newestFirst(std::span<const RecordedScan> scans)
{
    std::vector<const RecordedScan *> order;
    order.reserve(scans.size());
    for (const RecordedScan &scan : scans)
        order.push_back(&scan);
    std::stable_sort(order.begin(), order.end(), [](const auto *left, const auto *right) {
        return dateKey(*left) > dateKey(*right);
    });
    return copies(order);
}

std::vector<RecordedScan> latestPerRepository(std::span<const RecordedScan> scans)
{
    std::unordered_map<std::string_view, const RecordedScan *> latest;
    for (const RecordedScan &scan : scans) {
        const auto [kept, isNew] = latest.emplace(scan.repositoryPath, &scan);
        if (!isNew && scan.date > kept->second->date)
            kept->second = &scan;
    }
    std::vector<const RecordedScan *> order;
    order.reserve(latest.size());
    for (const auto &[path, scan] : latest)
        order.push_back(scan);
    std::sort(order.begin(), order.end(),
              [](const auto *left, const auto *right) { return nameKey(*left) < nameKey(*right); });
    return copies(order);
}

std::vector<LeaderboardEntry> leaderboard(std::span<const RecordedScan> scans)
{
    std::unordered_map<std::string_view, Standing> repositories;
    for (const RecordedScan &scan : scans)
        repositories[scan.repositoryPath].take(scan);
    std::vector<Standing> standings;
    standings.reserve(repositories.size());
    for (const auto &[path, standing] : repositories)
        standings.push_back(standing);
    std::sort(standings.begin(), standings.end(), isHeavier);
    std::vector<LeaderboardEntry> result;
    result.reserve(standings.size());
    for (const Standing &standing : standings)
        result.push_back(standing.entry());
    return result;
}

std::vector<RecordedScan> scans(std::span<const RecordedScan> scans,
                                std::string_view repositoryPath)
{
    std::vector<RecordedScan> found;
    std::copy_if(scans.begin(), scans.end(), std::back_inserter(found),
                 [repositoryPath](const RecordedScan &scan) {
                     return scan.repositoryPath == repositoryPath;
                 });
    return found;
}

std::optional<std::string> mostRecentRepositoryPath(std::span<const RecordedScan> scans)
{
    if (scans.empty())
        return std::nullopt;
    return scans.back().repositoryPath;
}

std::vector<std::string> categoryAxis(std::span<const RecordedScan> scans)
{
    std::unordered_map<std::string_view, std::int64_t> sums;
    for (const RecordedScan &scan : scans)
        for (const RecordedCategory &category : scan.categories) {
            std::int64_t &sum = sums[category.name];
            sum = checkedSum(sum, category.tokens);
        }
    std::vector<std::pair<std::string_view, std::int64_t>> order(sums.begin(), sums.end());
    std::sort(order.begin(), order.end(), [](const auto &left, const auto &right) {
        return std::tie(right.second, left.first) < std::tie(left.second, right.first);
    });
    std::vector<std::string> names;
    names.reserve(order.size());
    for (const auto &[name, sum] : order)
        names.emplace_back(name);
    return names;
}

} // namespace ScanHistory

} // namespace Loadwick
