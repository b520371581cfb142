#include "history/ScanHistory.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <map>
#include <random>

#include <gtest/gtest.h>

#include "history/ScanTables.h"
#include "support/RecordedScanBuilder.h"

namespace Loadwick {

namespace {

using Scans = std::vector<RecordedScan>;

std::string text(std::int64_t number)
{
    return std::to_string(number);
}

/// Few names, paths, dates and totals, so that every kind of tie occurs.
class RandomHistory
{
public:
    explicit RandomHistory(unsigned seed) : m_random(seed) {}

    Scans scans()
    {
        Scans scans;
        for (std::int64_t left = below(40); left > 0; --left)
            scans.push_back(scan());
        return scans;
    }

    /// Scans whose figures may be as large or small as they can be.
    Scans immenseScans()
    {
        constexpr std::int64_t most = std::numeric_limits<std::int64_t>::max();
        constexpr std::array figures = {most,      most / 2, most / 3, most - 1, std::int64_t{1},
                                        -most / 3, -most,    -most - 1};
        const auto figure = [&] {
            return figures.at(static_cast<std::size_t>(below(figures.size())));
        };
        Scans immense = scans();
        for (RecordedScan &scan : immense) {
            scan.total = figure();
            RecordedCategories::List categories(scan.categories.begin(), scan.categories.end());
            for (RecordedCategory &category : categories)
                category.tokens = figure() / (1 + below(9));
            scan.categories = std::move(categories);
        }
        return immense;
    }

    void shuffle(Scans &scans) { std::shuffle(scans.begin(), scans.end(), m_random); }

private:
    std::int64_t below(std::int64_t limit)
    {
        return std::uniform_int_distribution<std::int64_t>(0, limit - 1)(m_random);
    }

    RecordedScan scan()
    {
        // A path decides its name, as a folder does; two paths may share one.
        const std::int64_t path = below(6);
        RecordedScanBuilder builder;
        builder.in("/" + text(path)).named("n" + text(path % 4)).at(below(8)).ofTotal(below(5));
        for (std::int64_t left = below(6); left > 0; --left)
            builder.withCategory("c" + text(below(5)), below(4));
        return builder.build();
    }

    std::mt19937 m_random;
};

bool isBefore(const RecordedScan &left, const RecordedScan &right)
{
    return left.date != right.date ? left.date < right.date : left.id.text() < right.id.text();
}

Scans slowNewestFirst(Scans scans)
{
    std::sort(scans.begin(), scans.end(), isBefore);
    std::reverse(scans.begin(), scans.end());
    return scans;
}

std::map<std::string, Scans> slowGroups(const Scans &scans)
{
    std::map<std::string, Scans> groups;
    for (const RecordedScan &scan : scans)
        groups[scan.repositoryPath].push_back(scan);
    return groups;
}

std::vector<LeaderboardEntry> slowLeaderboard(const Scans &scans)
{
    std::vector<LeaderboardEntry> entries;
    for (auto [path, group] : slowGroups(scans)) {
        std::sort(group.begin(), group.end(), isBefore);
        std::optional<std::int64_t> previous;
        if (group.size() > 1)
            previous = group[group.size() - 2].total;
        entries.push_back({.latest = group.back(),
                           .previousTotal = previous,
                           .scanCount = static_cast<std::int64_t>(group.size())});
    }
    std::sort(entries.begin(), entries.end(), [](const auto &left, const auto &right) {
        return std::make_tuple(-left.latest.total, left.latest.repositoryName,
                               left.latest.repositoryPath) <
               std::make_tuple(-right.latest.total, right.latest.repositoryName,
                               right.latest.repositoryPath);
    });
    return entries;
}

Scans slowLatestPerRepository(const Scans &scans)
{
    Scans latest;
    for (const auto &[path, group] : slowGroups(scans)) {
        const RecordedScan *kept = &group.front();
        for (const RecordedScan &scan : group)
            if (scan.date > kept->date)
                kept = &scan;
        latest.push_back(*kept);
    }
    std::stable_sort(latest.begin(), latest.end(), [](const auto &left, const auto &right) {
        return left.repositoryName < right.repositoryName;
    });
    return latest;
}

std::vector<std::string> slowCategoryAxis(const Scans &scans)
{
    std::map<std::string, std::int64_t> sums;
    for (const RecordedScan &scan : scans)
        for (const RecordedCategory &category : scan.categories)
            sums[category.name] += category.tokens;
    std::vector<std::string> names;
    for (const auto &[name, sum] : sums)
        names.push_back(name);
    std::stable_sort(names.begin(), names.end(), [&sums](const auto &left, const auto &right) {
        return sums.at(left) > sums.at(right);
    });
    return names;
}

/// Whether no part of the scans has a sum or a difference that overflows, by counting in wider
/// numbers.
bool isSummable(const Scans &scans)
{
    long double magnitude = 0;
    for (const RecordedScan &scan : scans)
        for (const RecordedCategory &category : scan.categories)
            magnitude += std::abs(static_cast<long double>(category.tokens));
    const auto fits = [](long double value) { return value < 0x1p63L && value >= -0x1p63L; };
    if (!fits(magnitude))
        return false;
    for (const RecordedScan &left : scans)
        for (const RecordedScan &right : scans)
            if (left.repositoryPath == right.repositoryPath &&
                !fits(static_cast<long double>(left.total) - right.total))
                return false;
    return true;
}

/// Adds one scan after the other, as long as the sums fit.
Scans slowSummable(const Scans &scans)
{
    Scans kept;
    for (const RecordedScan &scan : scans) {
        kept.push_back(scan);
        if (!isSummable(kept))
            kept.pop_back();
    }
    return kept;
}

} // namespace

/// Each seed is one history.
class ScanHistoryOracleTest : public testing::TestWithParam<unsigned>
{};

TEST_P(ScanHistoryOracleTest, agreesWithTheNaiveImplementation)
{
    const Scans scans = RandomHistory(GetParam()).scans();
    EXPECT_EQ(ScanHistory::newestFirst(scans), slowNewestFirst(scans));
    EXPECT_EQ(ScanHistory::latestPerRepository(scans), slowLatestPerRepository(scans));
    EXPECT_EQ(ScanHistory::leaderboard(scans), slowLeaderboard(scans));
    EXPECT_EQ(ScanHistory::categoryAxis(scans), slowCategoryAxis(scans));
}

TEST_P(ScanHistoryOracleTest, isATotalOrderForAnyInputOrder)
{
    RandomHistory history(GetParam());
    const Scans scans = history.scans();
    Scans shuffled = scans;
    history.shuffle(shuffled);
    EXPECT_EQ(ScanHistory::newestFirst(scans), ScanHistory::newestFirst(shuffled));
    EXPECT_EQ(ScanHistory::leaderboard(scans), ScanHistory::leaderboard(shuffled));
    EXPECT_EQ(ScanHistory::categoryAxis(scans), ScanHistory::categoryAxis(shuffled));
}

TEST_P(ScanHistoryOracleTest, makesEverySumOfWhatItCallsSummable)
{
    RandomHistory history(GetParam());
    const Scans immense = history.immenseScans();
    Scans scans = ScanHistory::summable(immense);
    EXPECT_EQ(scans, slowSummable(immense));
    history.shuffle(scans);
    EXPECT_LE(ScanHistory::categoryAxis(scans).size(), 5U);
    for (const LeaderboardEntry &entry : ScanHistory::leaderboard(scans))
        EXPECT_EQ(entry.delta().has_value(), entry.scanCount > 1);
    EXPECT_FALSE(ScanTables::categories(scans).empty());
}

INSTANTIATE_TEST_SUITE_P(histories, ScanHistoryOracleTest, testing::Range(0U, 100U));

} // namespace Loadwick
