#include "support/ScanModelHarness.h"

#include <gtest/gtest.h>

namespace Loadwick {

TEST(ScanModelHarnessTest, stopsBeforeEveryStage)
{
    const ScanModelHarness harness;
    LoadedScanModel model(harness);
    harness.beginScan(model, ScanModelHarness::folderCheck);
    EXPECT_TRUE(harness.probe->runs().empty());
    harness.dispatcher->step();
    EXPECT_TRUE(harness.probe->runs().empty());
    harness.dispatcher->step();
    EXPECT_EQ(harness.probe->runs().size(), 1U);
    EXPECT_TRUE(harness.scanner->scans().empty());
    harness.dispatcher->step();
    EXPECT_EQ(harness.scanner->scans().size(), 1U);
    EXPECT_TRUE(harness.recorded().empty());
    harness.dispatcher->step();
    EXPECT_EQ(harness.recorded().size(), 1U);
    EXPECT_EQ(harness.dispatcher->backgroundCount() + harness.dispatcher->postedCount(), 0U);
}

TEST(ScanModelHarnessTest, showsTheRecordedScans)
{
    const ScanModelHarness harness;
    LoadedScanModel model(harness);
    EXPECT_TRUE(harness.recorded().empty());
    harness.scanOnce(model);
    EXPECT_EQ(harness.recorded().size(), 1U);
    EXPECT_TRUE(std::filesystem::is_directory(harness.repository().url));
    EXPECT_TRUE(std::filesystem::is_directory(harness.otherRepository().url));
}

} // namespace Loadwick
