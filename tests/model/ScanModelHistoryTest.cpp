#include "model/ScanModel.h"

#include <chrono>
#include <fstream>
#include <string>
#include <thread>

#if __has_include(<malloc.h>)
#include <malloc.h>
#endif

#include <gtest/gtest.h>

#include "history/ScanHistoryFile.h"
#include "support/DescriptorShortage.h"
#include "support/RecordedScanBuilder.h"
#include "support/Sanitizers.h"
#include "support/ScanModelHarness.h"

namespace Loadwick {

namespace {

using Harness = ScanModelHarness;
using History = std::vector<RecordedScan>;

class ScanModelHistoryTest : public testing::Test
{
protected:
    Harness harness;
};

} // namespace

TEST_F(ScanModelHistoryTest, loadsTheHistoryOldestFirst)
{
    ScanHistoryStore store(harness.historyFolder());
    const RecordedScan late = RecordedScanBuilder().at(2).build();
    const RecordedScan early = RecordedScanBuilder().at(1).build();
    static_cast<void>(store.append(late));
    static_cast<void>(store.append(early));
    LoadedScanModel model(harness);
    EXPECT_EQ(model.history().get(), (History{early, late}));
    EXPECT_TRUE(model.canClearHistory());
}

TEST_F(ScanModelHistoryTest, loadsTheHistoryOnceWhenAsked)
{
    ScanHistoryStore store(harness.historyFolder());
    const RecordedScan scan = RecordedScanBuilder().at(1).build();
    static_cast<void>(store.append(scan));
    ScanModel::Collaborators collaborators = harness.collaborators();
    collaborators.loadsHistoryAtOnce = false;
    ScanModel model(std::move(collaborators));
    harness.dispatcher->runAll();
    EXPECT_TRUE(model.history().get().empty());
    EXPECT_FALSE(model.isHistoryComplete());
    model.loadHistory();
    harness.dispatcher->runAll();
    EXPECT_EQ(model.history().get(), History{scan});
    EXPECT_TRUE(model.isHistoryComplete());
    store.clear();
    model.loadHistory();
    harness.dispatcher->runAll();
    EXPECT_EQ(model.history().get(), History{scan});
}

TEST_F(ScanModelHistoryTest, aScanThatEndsBeforeTheHistoryIsAskedForKeepsIt)
{
    ScanHistoryStore store(harness.historyFolder());
    const RecordedScan scan = RecordedScanBuilder().at(1).build();
    static_cast<void>(store.append(scan));
    ScanModel::Collaborators collaborators = harness.collaborators();
    collaborators.loadsHistoryAtOnce = false;
    ScanModel model(std::move(collaborators));
    harness.scanOnce(model);
    ASSERT_EQ(model.history().get().size(), 2U);
    EXPECT_EQ(model.history().get().front(), scan);
    EXPECT_EQ(harness.recorded(), model.history().get());
    EXPECT_TRUE(model.isHistoryComplete());
}

TEST_F(ScanModelHistoryTest, recordsASuccessfulScan)
{
    LoadedScanModel model(harness);
    harness.scanOnce(model);
    ASSERT_EQ(model.history().get().size(), 1U);
    const RecordedScan &recorded = model.history().get().front();
    EXPECT_EQ(recorded,
              RecordedScan::fromReport(harness.expectedReport(), Harness::now, recorded.id));
    EXPECT_EQ(harness.recorded(), model.history().get());
    EXPECT_TRUE(model.canClearHistory());
}

TEST_F(ScanModelHistoryTest, givesEveryRecordItsOwnIdentifier)
{
    LoadedScanModel model(harness);
    harness.scanOnce(model);
    harness.scanOnce(model);
    ASSERT_EQ(model.history().get().size(), 2U);
    EXPECT_NE(model.history().get()[0].id, model.history().get()[1].id);
}

TEST_F(ScanModelHistoryTest, recordsNothingWithoutAStore)
{
    ScanModel model(harness.collaboratorsWithoutStore());
    harness.scanOnce(model);
    EXPECT_EQ(model.state().get(), ScanState::result(harness.expectedReport()));
    EXPECT_TRUE(model.history().get().empty());
    EXPECT_FALSE(model.canClearHistory());
    model.clearHistory();
    EXPECT_TRUE(model.history().get().empty());
}

TEST_F(ScanModelHistoryTest, namesTheFileOfItsStore)
{
    EXPECT_EQ(ScanModel(harness.collaborators()).historyFile(),
              harness.historyFolder() / "scan-history.json");
    EXPECT_EQ(ScanModel(harness.collaboratorsWithoutStore()).historyFile(), std::nullopt);
}

TEST_F(ScanModelHistoryTest, publishesTwoHundredScansWhenTwoHundredWereRecorded)
{
    ScanHistoryFile file{.version = ScanHistoryStore::schemaVersion, .scans = {}};
    for (int second = 1; second <= 200; ++second)
        file.scans.push_back(RecordedScanBuilder().at(second).build());
    std::filesystem::create_directories(harness.historyFolder());
    std::ofstream(harness.historyFolder() / ScanHistoryStore::fileName) << file.encoded();
    LoadedScanModel model(harness);
    const History before = model.history().get();
    ASSERT_EQ(before.size(), 200U);
    harness.scanOnce(model);
    const History &after = model.history().get();
    ASSERT_EQ(after.size(), 200U);
    EXPECT_EQ(after.front(), before[1]);
    EXPECT_EQ(after.back().date, Harness::now);
}

TEST_F(ScanModelHistoryTest, publishesTheNewListEvenWhenWritingFails)
{
    const TemporaryFolder folder;
    folder.write("scan-history.json/in the way", "");
    ScanModel::Collaborators collaborators = harness.collaborators();
    collaborators.historyStore = std::make_unique<ScanHistoryStore>(folder.path());
    LoadedScanModel model(harness, std::move(collaborators));
    harness.scanOnce(model);
    EXPECT_EQ(model.history().get().size(), 1U);
}

TEST_F(ScanModelHistoryTest, publishesWhatIsKnownWhileTheFileCannotBeRead)
{
    LoadedScanModel model(harness);
    harness.scanOnce(model);
    const History before = model.history().get();
    harness.beginScan(model, Harness::reporting);
    {
        const DescriptorShortage shortage;
        harness.dispatcher->runAll();
    }
    ASSERT_EQ(model.history().get().size(), 2U);
    EXPECT_EQ(model.history().get().front(), before.front());
    EXPECT_EQ(harness.recorded(), before);
}

TEST_F(ScanModelHistoryTest, clearsTheHistory)
{
    LoadedScanModel model(harness);
    harness.scanOnce(model);
    model.clearHistory();
    harness.dispatcher->runAll();
    EXPECT_TRUE(model.history().get().empty());
    EXPECT_FALSE(model.canClearHistory());
    EXPECT_TRUE(harness.recorded().empty());
    EXPECT_EQ(model.state().get(), ScanState::result(harness.expectedReport()));
}

TEST_F(ScanModelHistoryTest, clearsTheHistoryEvenIfTheFileCannotBeDeleted)
{
    LoadedScanModel model(harness);
    harness.scanOnce(model);
    const std::filesystem::path file = harness.historyFolder() / ScanHistoryStore::fileName;
    std::filesystem::remove(file);
    std::filesystem::create_directory(file); // a folder is never removed
    model.clearHistory();
    harness.dispatcher->runAll();
    EXPECT_TRUE(model.history().get().empty());
    EXPECT_TRUE(std::filesystem::exists(file));
}

TEST_F(ScanModelHistoryTest, recordsAScanAfterAClearWhileItRan)
{
    LoadedScanModel model(harness);
    harness.scanOnce(model);
    harness.beginScan(model, Harness::probing);
    model.clearHistory();
    harness.dispatcher->runAll();
    EXPECT_EQ(model.history().get().size(), 1U);
    EXPECT_EQ(harness.recorded().size(), 1U);
}

TEST_F(ScanModelHistoryTest, readsInTheBackground)
{
    harness.scanOnce(*std::make_unique<LoadedScanModel>(harness));
    int changes = 0;
    ScanModel model(harness.collaborators());
    model.history().observe({.didChange = [&] { ++changes; }});
    EXPECT_FALSE(model.isHistoryComplete());
    EXPECT_FALSE(model.canClearHistory());
    ScanHistoryStore(harness.historyFolder()).clear(); // nobody has read it so far
    harness.dispatcher->runAll();
    EXPECT_EQ(changes, 1);
    EXPECT_TRUE(model.isHistoryComplete());
    EXPECT_TRUE(model.history().get().empty());
}

TEST_F(ScanModelHistoryTest, recordsInTheBackground)
{
    LoadedScanModel model(harness);
    harness.beginScan(model, Harness::reporting);
    bool wasComplete = true;
    model.state().observe({.didChange = [&] { wasComplete = model.isHistoryComplete(); }});
    harness.dispatcher->step();
    EXPECT_EQ(model.state().get(), ScanState::result(harness.expectedReport()));
    EXPECT_FALSE(wasComplete);
    EXPECT_FALSE(model.isHistoryComplete());
    EXPECT_TRUE(model.history().get().empty());
    EXPECT_TRUE(harness.recorded().empty());
    harness.dispatcher->step();
    EXPECT_TRUE(model.isHistoryComplete());
    EXPECT_EQ(model.history().get().size(), 1U);
    EXPECT_EQ(harness.recorded().size(), 1U);
}

TEST_F(ScanModelHistoryTest, clearsInTheBackground)
{
    LoadedScanModel model(harness);
    harness.scanOnce(model);
    model.clearHistory();
    EXPECT_FALSE(model.isHistoryComplete());
    EXPECT_EQ(model.history().get().size(), 1U);
    EXPECT_EQ(harness.recorded().size(), 1U);
    harness.dispatcher->runBackground();
    EXPECT_TRUE(harness.recorded().empty());
    harness.dispatcher->runPosted();
    EXPECT_TRUE(model.isHistoryComplete());
    EXPECT_TRUE(model.history().get().empty());
}

#if defined(__GLIBC__)
TEST_F(ScanModelHistoryTest, freesInTheBackgroundWhatItForgets)
{
    if (isSanitized)
        GTEST_SKIP() << "a sanitizer has an allocator of its own";
    constexpr std::size_t names = 20'000;
    RecordedScanBuilder builder;
    for (std::size_t number = 0; number < names; ++number)
        builder.withCategory("a category of this name: " + std::to_string(number), 1);
    static_cast<void>(ScanHistoryStore(harness.historyFolder()).append(builder.build()));
    builder = {};
    LoadedScanModel model(harness);
    ASSERT_EQ(model.history().get().size(), 1U);
    model.clearHistory();
    const std::size_t before = mallinfo2().uordblks;
    harness.dispatcher->step();
    EXPECT_TRUE(model.history().get().empty());
    EXPECT_LT(before, mallinfo2().uordblks + names * sizeof(RecordedCategory));
    harness.dispatcher->runAll();
    EXPECT_GE(before, mallinfo2().uordblks + names * sizeof(RecordedCategory));
}
#endif

TEST_F(ScanModelHistoryTest, recordsAScanThatEndedBeforeTheHistoryWasRead)
{
    harness.scanOnce(*std::make_unique<LoadedScanModel>(harness));
    std::vector<std::size_t> sizes;
    ScanModel model(harness.collaborators());
    model.history().observe({.didChange = [&] { sizes.push_back(model.history().get().size()); }});
    model.select(harness.repository());
    model.scan();
    for (int stage = 0; stage < 3; ++stage)
        harness.dispatcher->stepNewest();
    EXPECT_EQ(model.state().get(), ScanState::result(harness.expectedReport()));
    EXPECT_EQ(sizes, std::vector<std::size_t>());
    harness.dispatcher->runAll();
    EXPECT_EQ(sizes, (std::vector<std::size_t>{1, 2}));
    EXPECT_EQ(harness.recorded(), model.history().get());
}

TEST_F(ScanModelHistoryTest, clearsWhatWasAskedForBefore)
{
    harness.scanOnce(*std::make_unique<LoadedScanModel>(harness));
    std::vector<std::size_t> sizes;
    ScanModel model(harness.collaborators());
    model.history().observe({.didChange = [&] { sizes.push_back(model.history().get().size()); }});
    model.clearHistory();
    harness.dispatcher->runAll();
    EXPECT_EQ(sizes, (std::vector<std::size_t>{1, 0}));
    EXPECT_TRUE(harness.recorded().empty());
}

TEST_F(ScanModelHistoryTest, recordsEvenWhenNoThreadCanBeStarted)
{
    LoadedScanModel model(harness);
    harness.beginScan(model, Harness::reporting);
    harness.dispatcher->refuseBackground();
    harness.dispatcher->runAll();
    EXPECT_EQ(model.history().get().size(), 1U);
    EXPECT_EQ(harness.recorded().size(), 1U);
}

TEST_F(ScanModelHistoryTest, finishesWhatIsToBeWrittenAndAwaitsNoReading)
{
    ScanModel model(harness.collaborators());
    model.finishHistory();
    EXPECT_FALSE(model.isHistoryComplete());
    harness.dispatcher->runAll();
    harness.beginScan(model, Harness::reporting);
    harness.dispatcher->step();
    std::thread disk([this] { harness.dispatcher->runBackground(); });
    model.finishHistory();
    EXPECT_EQ(harness.recorded().size(), 1U);
    disk.join();
    harness.dispatcher->runAll();
    EXPECT_TRUE(model.isHistoryComplete());
}

TEST_F(ScanModelHistoryTest, keepsBothScansWhenTheClockWasSetBackBetweenThem)
{
    ScanModel::Collaborators collaborators = harness.collaborators();
    std::chrono::sys_seconds clock = Harness::now;
    collaborators.now = [&clock] { return clock; };
    LoadedScanModel model(harness, std::move(collaborators));
    harness.scanOnce(model);
    clock -= std::chrono::hours(1);
    harness.scanOnce(model);
    clock += std::chrono::hours(2);
    harness.scanOnce(model);
    const History &history = model.history().get();
    ASSERT_EQ(history.size(), 3U);
    EXPECT_EQ(history[0].date, Harness::now - std::chrono::hours(1));
    EXPECT_EQ(history[1].date, Harness::now);
    EXPECT_EQ(history[2].date, Harness::now + std::chrono::hours(1));
    EXPECT_EQ(harness.recorded(), history);
}

} // namespace Loadwick
