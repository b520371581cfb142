#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "model/ScanModel.h"
#include "support/ScanModelHarness.h"

namespace Loadwick {

namespace {

using Harness = ScanModelHarness;
using Log = std::vector<std::string>;

std::string nameOf(const ScanState &state)
{
    constexpr const char *names[] = {"idle", "scanning", "result", "failed"};
    return names[state.value().index()];
}

/// Every change of a model's values, in order.
Log &logOf(ScanModel &model, Log &log)
{
    model.state().observe({.didChange = [&] { log.push_back(nameOf(model.state().get())); }});
    model.selection().observe({.didChange = [&] { log.push_back("selection"); }});
    model.history().observe({.didChange = [&] {
        log.push_back("history " + std::to_string(model.history().get().size()));
    }});
    return log;
}

class ScanModelObserversTest : public testing::Test
{
protected:
    Harness harness;
    LoadedScanModel model{harness};
    Log log;
};

} // namespace

TEST_F(ScanModelObserversTest, seeTheResultBeforeTheHistory)
{
    logOf(model, log);
    harness.scanOnce(model);
    EXPECT_EQ(log, (Log{"selection", "idle", "scanning", "result", "history 1"}));
}

TEST_F(ScanModelObserversTest, seeNoHistoryChangeAfterAFailure)
{
    harness.probe->answer = []() -> ProbeResult { throw ProbeError::timedOut(); };
    logOf(model, log);
    harness.beginScan(model, Harness::reporting);
    EXPECT_EQ(log, (Log{"selection", "idle", "scanning", "failed"}));
}

TEST_F(ScanModelObserversTest, seeNoChangeFromAnIgnoredCall)
{
    logOf(model, log);
    model.scan();
    EXPECT_EQ(log, Log{});
    harness.beginScan(model, Harness::probing);
    log.clear();
    model.scan();
    model.select(harness.otherRepository());
    EXPECT_EQ(log, Log{});
}

TEST_F(ScanModelObserversTest, seeAChangeBeforeItHolds)
{
    model.state().observe({.willChange = [&](const ScanState &incoming) {
        log.push_back(nameOf(model.state().get()) + ">" + nameOf(incoming));
    }});
    harness.scanOnce(model);
    EXPECT_EQ(log, (Log{"idle>idle", "idle>scanning", "scanning>result"}));
}

TEST_F(ScanModelObserversTest, mayScanAgainAtTheResult)
{
    bool isFirst = true;
    model.state().observe({.didChange = [&] {
        if (nameOf(model.state().get()) == "result" && std::exchange(isFirst, false))
            model.scan();
    }});
    logOf(model, log);
    harness.scanOnce(model);
    EXPECT_EQ(log, (Log{"selection", "idle", "scanning", "result", "scanning", "history 1",
                        "result", "history 2"}));
    EXPECT_EQ(harness.probe->runs().size(), 2U);
    EXPECT_EQ(nameOf(model.state().get()), "result");
    EXPECT_EQ(harness.recorded().size(), 2U);
}

TEST_F(ScanModelObserversTest, mayChooseAtTheResult)
{
    model.state().observe({.didChange = [&] {
        if (nameOf(model.state().get()) == "result")
            model.select(harness.otherRepository());
    }});
    harness.scanOnce(model);
    EXPECT_EQ(nameOf(model.state().get()), "idle");
    EXPECT_EQ(model.selection().get(), harness.otherRepository());
    EXPECT_EQ(model.history().get().size(), 1U);
}

TEST_F(ScanModelObserversTest, cannotStartASecondScanWhileOneIsAnnounced)
{
    model.state().observe({.willChange =
                               [&](const ScanState &incoming) {
                                   if (incoming.isScanning())
                                       model.scan();
                               },
                           .didChange =
                               [&] {
                                   if (model.state().get().isScanning())
                                       model.scan();
                               }});
    harness.beginScan(model, Harness::folderCheck);
    EXPECT_EQ(harness.dispatcher->backgroundCount(), 1U);
    harness.dispatcher->runAll();
    EXPECT_EQ(harness.probe->runs().size(), 1U);
}

TEST_F(ScanModelObserversTest, cannotChooseWhileAScanIsAnnounced)
{
    model.state().observe({.willChange = [&](const ScanState &incoming) {
        if (incoming.isScanning())
            model.select(harness.otherRepository());
    }});
    harness.scanOnce(model);
    EXPECT_EQ(model.selection().get(), harness.repository());
    EXPECT_EQ(nameOf(model.state().get()), "result");
}

TEST_F(ScanModelObserversTest, mayScanAsSoonAsAFolderIsChosen)
{
    model.selection().observe({.didChange = [&] { model.scan(); }});
    model.select(harness.repository());
    EXPECT_EQ(harness.dispatcher->backgroundCount(), 1U);
    harness.dispatcher->runAll();
    EXPECT_EQ(nameOf(model.state().get()), "result");
    EXPECT_EQ(harness.probe->runs().size(), 1U);
}

TEST_F(ScanModelObserversTest, mayClearTheHistoryAsItGrows)
{
    model.history().observe({.didChange = [&] {
        if (!model.history().get().empty())
            model.clearHistory();
    }});
    harness.scanOnce(model);
    EXPECT_TRUE(model.history().get().empty());
    EXPECT_TRUE(harness.recorded().empty());
}

TEST_F(ScanModelObserversTest, cannotScanUntilTheOutcomeHolds)
{
    std::vector<bool> could;
    model.state().observe(
        {.willChange = [&](const ScanState &) { could.push_back(model.canScan()); },
         .didChange = [&] { could.push_back(model.canScan()); }});
    harness.scanOnce(model);
    // Chosen, scanning, done.
    EXPECT_EQ(could, (std::vector<bool>{true, true, false, false, false, true}));
}

} // namespace Loadwick
