#include "model/ScanModel.h"

#include <new>
#include <stdexcept>

#include <gtest/gtest.h>

#include "samples/SampleReport.h"
#include "support/ScanModelHarness.h"

namespace Loadwick {

namespace {

using Harness = ScanModelHarness;

constexpr Harness::Stage everyRunningStage[] = {Harness::folderCheck, Harness::probing,
                                                Harness::reporting};

class ScanModelTest : public testing::Test
{
protected:
    Harness harness;
};

} // namespace

TEST_F(ScanModelTest, statesWhatAScanCosts)
{
    EXPECT_EQ(ScanModel::allowanceDisclosure,
              "Scanning starts one real Claude Code session in this folder and uses a small part "
              "of your Claude allowance.");
}

TEST_F(ScanModelTest, beginsIdleWithoutAFolder)
{
    LoadedScanModel model(harness);
    EXPECT_EQ(model.state().get(), ScanState::idle());
    EXPECT_FALSE(model.selection().get());
    EXPECT_TRUE(model.history().get().empty());
    EXPECT_FALSE(model.canScan());
    EXPECT_FALSE(model.canClearHistory());
    EXPECT_FALSE(std::filesystem::exists(harness.historyFolder()));
}

TEST_F(ScanModelTest, doesNothingWithoutASelection)
{
    LoadedScanModel model(harness);
    model.scan();
    EXPECT_EQ(model.state().get(), ScanState::idle());
    EXPECT_EQ(harness.dispatcher->backgroundCount(), 0U);
    EXPECT_TRUE(harness.recorded().empty());
}

TEST_F(ScanModelTest, scansTheChosenFolder)
{
    LoadedScanModel model(harness);
    model.select(harness.repository());
    EXPECT_TRUE(model.canScan());
    model.scan();
    EXPECT_EQ(model.state().get(), ScanState::scanning());
    EXPECT_FALSE(model.canScan());
    harness.dispatcher->runAll();
    EXPECT_EQ(model.state().get(), ScanState::result(harness.expectedReport()));
    EXPECT_TRUE(model.canScan());
    EXPECT_EQ(harness.probe->runs(), std::vector{harness.repository().url});
    EXPECT_EQ(harness.scanner->scans(), std::vector{harness.repository().url});
}

TEST_F(ScanModelTest, keepsTheChosenNameAndTheFilesInTheReport)
{
    LoadedScanModel model(harness);
    InstructionFileSet files;
    files.repositoryFiles = {InstructionFileEstimate::fromPath("/a/CLAUDE.md", 400)};
    files.unreadablePaths = {"/a/AGENTS.md"};
    harness.scanner->answer = [files] { return files; };
    RepoSelection selection = harness.repository();
    selection.displayName = "My shop";
    model.select(selection);
    model.scan();
    harness.dispatcher->runAll();
    const auto &report = std::get<ScanState::Result>(model.state().get().value()).report;
    EXPECT_EQ(report.repositoryName, "My shop");
    EXPECT_EQ(report.repositoryPath, selection.path());
    EXPECT_EQ(report.fileSet, files);
}

TEST_F(ScanModelTest, runsTheProbeOnceForTwoScansStartedBackToBack)
{
    LoadedScanModel model(harness);
    model.select(harness.repository());
    model.scan();
    model.scan();
    EXPECT_EQ(harness.dispatcher->backgroundCount(), 1U);
    harness.dispatcher->runAll();
    EXPECT_EQ(harness.probe->runs().size(), 1U);
    EXPECT_EQ(model.history().get().size(), 1U);
}

TEST_F(ScanModelTest, startsNoSecondScanInAnyStageOfTheFirst)
{
    for (const Harness::Stage stage : everyRunningStage) {
        ScanModel model(harness.collaboratorsWithoutStore());
        harness.beginScan(model, stage);
        model.scan();
        EXPECT_EQ(harness.dispatcher->backgroundCount(), 1U) << stage;
        harness.dispatcher->runBackground();
        model.scan(); // between the end of a stage and its arrival
        harness.dispatcher->runAll();
        EXPECT_EQ(model.state().get(), ScanState::result(harness.expectedReport()));
    }
    EXPECT_EQ(harness.probe->runs().size(), 3U);
}

TEST_F(ScanModelTest, ignoresAChoiceInEveryStageOfAScan)
{
    for (const Harness::Stage stage : everyRunningStage) {
        ScanModel model(harness.collaboratorsWithoutStore());
        harness.beginScan(model, stage);
        model.select(harness.otherRepository());
        EXPECT_EQ(model.selection().get(), harness.repository()) << stage;
        EXPECT_EQ(model.state().get(), ScanState::scanning()) << stage;
        harness.dispatcher->runAll();
        EXPECT_EQ(model.state().get(), ScanState::result(harness.expectedReport()));
        model.select(harness.otherRepository());
        EXPECT_EQ(model.selection().get(), harness.otherRepository());
        EXPECT_EQ(model.state().get(), ScanState::idle());
    }
}

TEST_F(ScanModelTest, returnsToIdleWhenAFolderIsChosenAfterAResultOrAFailure)
{
    LoadedScanModel model(harness);
    harness.scanOnce(model);
    model.select(harness.repository());
    EXPECT_EQ(model.state().get(), ScanState::idle());
    EXPECT_EQ(model.history().get().size(), 1U);
    harness.probe->answer = []() -> ProbeResult { throw ProbeError::timedOut(); };
    harness.scanOnce(model);
    EXPECT_EQ(model.state().get(), ScanState::failed(ProbeError::timedOut()));
    model.select(harness.otherRepository());
    EXPECT_EQ(model.state().get(), ScanState::idle());
}

TEST_F(ScanModelTest, neverReachesTheProbeWhenTheFolderCannotBeListed)
{
    LoadedScanModel model(harness);
    const std::filesystem::path missing = harness.historyFolder() / "missing";
    model.select(RepoSelection::fromUrl(missing));
    model.scan();
    harness.dispatcher->runAll();
    EXPECT_EQ(model.state().get(),
              ScanState::failed(ProbeError::repositoryUnreadable(missing.string())));
    EXPECT_TRUE(harness.probe->runs().empty());
    EXPECT_TRUE(harness.scanner->scans().empty());
    EXPECT_TRUE(harness.recorded().empty());
    EXPECT_TRUE(model.canScan());
}

TEST_F(ScanModelTest, showsAProbeErrorUnchanged)
{
    for (const ProbeError &error :
         {ProbeError::cliNotFound({"/a", "/b"}), ProbeError::notAuthenticated(),
          ProbeError::sessionFailed("limit"), ProbeError::multiTurnUsageOnly(3)}) {
        LoadedScanModel model(harness);
        harness.probe->answer = [error]() -> ProbeResult { throw ProbeError(error); };
        harness.beginScan(model, Harness::reporting);
        EXPECT_EQ(model.state().get(), ScanState::failed(error));
        EXPECT_EQ(harness.dispatcher->backgroundCount(), 0U);
    }
    EXPECT_TRUE(harness.scanner->scans().empty());
    EXPECT_TRUE(harness.recorded().empty());
}

TEST_F(ScanModelTest, showsAnyOtherProbeErrorAsUnreadableOutput)
{
    LoadedScanModel model(harness);
    harness.probe->answer = []() -> ProbeResult { throw std::runtime_error("the pipe broke"); };
    harness.beginScan(model, Harness::reporting);
    EXPECT_EQ(model.state().get(),
              ScanState::failed(ProbeError::unreadableOutput("the pipe broke")));
    harness.probe->answer = []() -> ProbeResult { throw 7; };
    harness.beginScan(model, Harness::reporting);
    EXPECT_EQ(model.state().get(),
              ScanState::failed(ProbeError::unreadableOutput("unknown error")));
    EXPECT_TRUE(harness.recorded().empty());
}

TEST_F(ScanModelTest, failsWhenTheFileScanRunsOutOfMemory)
{
    LoadedScanModel model(harness);
    harness.scanner->answer = []() -> InstructionFileSet { throw std::bad_alloc(); };
    harness.scanOnce(model);
    EXPECT_EQ(model.state().get(),
              ScanState::failed(ProbeError::unreadableOutput(std::bad_alloc().what())));
    EXPECT_TRUE(model.canScan());
    EXPECT_TRUE(model.history().get().empty());
}

TEST_F(ScanModelTest, failsWhenAStageCannotBeStarted)
{
    for (const Harness::Stage stage : everyRunningStage) {
        const Harness fresh;
        LoadedScanModel model(fresh);
        if (stage == Harness::folderCheck)
            fresh.dispatcher->refuseBackground();
        fresh.beginScan(model, Harness::folderCheck);
        for (int step = 1; step <= stage; ++step) {
            if (step == stage)
                fresh.dispatcher->refuseBackground();
            fresh.dispatcher->step();
        }
        const auto *failure = std::get_if<ScanState::Failed>(&model.state().get().value());
        ASSERT_NE(failure, nullptr) << stage;
        EXPECT_EQ(failure->error.headline(), ProbeError::unreadableOutput("").headline());
        EXPECT_NE(failure->error.detail(), "(no output)");
        EXPECT_TRUE(model.canScan());
        EXPECT_TRUE(fresh.recorded().empty());
    }
}

TEST_F(ScanModelTest, scansAgainFromAResultAndFromAFailure)
{
    LoadedScanModel model(harness);
    harness.scanOnce(model);
    harness.probe->answer = []() -> ProbeResult { throw ProbeError::timedOut(); };
    model.scan();
    EXPECT_EQ(model.state().get(), ScanState::scanning());
    harness.dispatcher->runAll();
    EXPECT_EQ(model.state().get(), ScanState::failed(ProbeError::timedOut()));
    EXPECT_EQ(model.history().get().size(), 1U);
    harness.probe->answer = sampleProbeResult;
    model.scan();
    EXPECT_EQ(model.state().get(), ScanState::scanning());
    harness.dispatcher->runAll();
    EXPECT_EQ(model.state().get(), ScanState::result(harness.expectedReport()));
    EXPECT_EQ(model.history().get().size(), 2U);
}

TEST_F(ScanModelTest, requiresEachOfItsCollaborators)
{
    const auto without = [this](auto leaveOut) {
        ScanModel::Collaborators all = harness.collaboratorsWithoutStore();
        leaveOut(all);
        LoadedScanModel model(harness, std::move(all));
    };
    EXPECT_DEATH(without([](auto &all) { all.probeRunner = nullptr; }), "lacks a collaborator");
    EXPECT_DEATH(without([](auto &all) { all.instructionScanner = nullptr; }),
                 "lacks a collaborator");
    EXPECT_DEATH(without([](auto &all) { all.dispatcher = nullptr; }), "lacks a collaborator");
    EXPECT_DEATH(without([](auto &all) { all.now = nullptr; }), "lacks a collaborator");
}

} // namespace Loadwick
