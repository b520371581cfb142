#include "demo/SampleHistory.h"

#include <cctype>
#include <set>

#include <gtest/gtest.h>

#include "demo/StandIn.h"
#include "support/TemporaryFolder.h"

namespace Loadwick {

namespace {

constexpr std::chrono::sys_seconds now{std::chrono::seconds(1'780'000'000)};

} // namespace

TEST(SampleHistoryTest, isOldestFirstAndLiesInThePast)
{
    const std::vector<RecordedScan> scans = SampleHistory::scans("/projects", now);
    for (std::size_t index = 1; index < scans.size(); ++index)
        EXPECT_LE(scans[index - 1].date, scans[index].date);
    EXPECT_LT(scans.back().date, now);
}

TEST(SampleHistoryTest, splitsEachTotalWithoutARest)
{
    for (const RecordedScan &scan : SampleHistory::scans("/projects", now)) {
        std::int64_t sum = 0;
        for (const RecordedCategory &category : scan.categories)
            sum += category.tokens;
        EXPECT_EQ(sum, scan.total) << scan.repositoryName;
    }
}

// Else each repository that is scanned during the demonstration would have rows of its own.
TEST(SampleHistoryTest, namesCategoriesAsTheStandInDoes)
{
    const TemporaryFolder home;
    const StandIn standIn(home.path());
    standIn.install();
    const std::string answer = contentOf(standIn.executable());
    for (const RecordedScan &scan : SampleHistory::scans("/projects", now))
        for (const RecordedCategory &category : scan.categories)
            if (std::islower(static_cast<unsigned char>(category.name.front())) != 0) {
                EXPECT_NE(answer.find("SLAB " + category.name + " TOKENS"), std::string::npos)
                    << category.name;
            }
}

TEST(SampleHistoryTest, showsEveryBand)
{
    std::set<OpinionBand::Value> bands;
    for (const RecordedScan &scan : SampleHistory::scans("/projects", now))
        bands.insert(scan.band());
    EXPECT_EQ(bands.size(), 3u);
}

} // namespace Loadwick
