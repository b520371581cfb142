#include "support/ScanStateTable.h"

#include <gtest/gtest.h>

namespace Loadwick {

namespace {

using Phase = ScanStateTable::Phase;

const RepoSelection webshop = RepoSelection::fromUrl("/srv/webshop");
const RepoSelection other = RepoSelection::fromUrl("/srv/other");

std::chrono::sys_seconds at(int seconds)
{
    return std::chrono::sys_seconds(std::chrono::seconds(seconds));
}

void scanAt(ScanStateTable &table, int seconds)
{
    table.scan();
    table.succeed(at(seconds));
}

} // namespace

TEST(ScanStateTableTest, ignoresAScanWithoutASelectionAndEverythingDuringAScan)
{
    ScanStateTable table(true);
    table.scan();
    EXPECT_EQ(table.phase(), Phase::idle);
    EXPECT_EQ(table.changes(), "");
    table.select(webshop);
    EXPECT_EQ(table.changes(), "st");
    table.scan();
    table.select(other);
    EXPECT_EQ(table.selection(), webshop);
    EXPECT_EQ(table.phase(), Phase::scanning);
    EXPECT_EQ(table.changes(), "");
}

TEST(ScanStateTableTest, returnsToIdleFromAFailureOnTheNextSelection)
{
    ScanStateTable table(true);
    table.select(webshop);
    table.scan();
    table.fail(ProbeError::timedOut());
    EXPECT_EQ(table.error(), ProbeError::timedOut());
    table.select(webshop);
    EXPECT_EQ(table.phase(), Phase::idle);
    EXPECT_EQ(table.error(), std::nullopt);
}

TEST(ScanStateTableTest, sortsScansByDateThenNameAndKeepsTheNewestTwoHundred)
{
    ScanStateTable table(true);
    table.select(webshop);
    for (int second = 1; second <= 200; ++second)
        scanAt(table, second);
    table.select(other);
    scanAt(table, 200);
    EXPECT_EQ(table.history().size(), 200U);
    EXPECT_EQ(table.history().front().date, at(2));
    EXPECT_EQ(table.history().back().repository, webshop.id());
    EXPECT_EQ(table.changes(), "tth");
}

TEST(ScanStateTableTest, showsAScanThatWasNotWrittenUntilTheNextScan)
{
    ScanStateTable table(true);
    table.select(webshop);
    scanAt(table, 1);
    table.setDiskWorks(false);
    scanAt(table, 2);
    EXPECT_EQ(table.history(), (ScanStateTable::Entries{{webshop.id(), at(2)}}));
    table.setDiskWorks(true);
    scanAt(table, 3);
    EXPECT_EQ(table.history(),
              (ScanStateTable::Entries{{webshop.id(), at(1)}, {webshop.id(), at(3)}}));
}

TEST(ScanStateTableTest, startsWithTheRecordedScans)
{
    ScanStateTable table(true);
    table.select(webshop);
    scanAt(table, 1);
    table.start();
    EXPECT_EQ(table.history().size(), 1U);
    EXPECT_EQ(table.selection(), std::nullopt);
    table.corrupt();
    EXPECT_TRUE(table.canClear());
    table.start();
    EXPECT_FALSE(table.canClear());
}

TEST(ScanStateTableTest, recordsNothingWithoutAStore)
{
    ScanStateTable table(false);
    table.select(webshop);
    scanAt(table, 1);
    EXPECT_TRUE(table.history().empty());
    EXPECT_EQ(table.changes(), "tt");
    table.clear();
    EXPECT_EQ(table.changes(), "h");
}

} // namespace Loadwick
