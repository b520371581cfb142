#include "support/ScanFakes.h"

#include <gtest/gtest.h>

#include "probe/ProbeError.h"

namespace Loadwick {

using Folders = std::vector<std::filesystem::path>;

TEST(ScanFakesTest, theProbeReturnsTheSampleResultAndRecordsTheFolders)
{
    FakeProbe probe;
    EXPECT_EQ(probe.run("/a"), sampleProbeResult());
    EXPECT_EQ(probe.run("/b"), sampleProbeResult());
    EXPECT_EQ(probe.runs(), (Folders{"/a", "/b"}));
}

TEST(ScanFakesTest, theProbeFailsWhenTold)
{
    FakeProbe probe;
    probe.answer = []() -> ProbeResult { throw ProbeError::timedOut(); };
    EXPECT_THROW(static_cast<void>(probe.run("/a")), ProbeError);
    EXPECT_EQ(probe.runs().size(), 1U);
}

TEST(ScanFakesTest, theScannerReturnsItsResultAndRecordsTheFolders)
{
    FakeInstructionScanner scanner;
    EXPECT_EQ(scanner.scan("/a"), InstructionFileSet());
    InstructionFileSet files;
    files.unreadablePaths = {"/a/CLAUDE.md"};
    scanner.answer = [files] { return files; };
    EXPECT_EQ(scanner.scan("/b"), files);
    EXPECT_EQ(scanner.scans(), (Folders{"/a", "/b"}));
}

TEST(ScanFakesTest, theStoreRemembersAndCountsItsWrites)
{
    FakeCompletionStore store;
    EXPECT_FALSE(store.onboardingCompleted());
    store.setOnboardingCompleted(true);
    EXPECT_TRUE(store.onboardingCompleted());
    store.setOnboardingCompleted(false);
    EXPECT_FALSE(store.onboardingCompleted());
    EXPECT_EQ(store.writes, 2);
    EXPECT_TRUE(FakeCompletionStore(true).onboardingCompleted());
}

} // namespace Loadwick
