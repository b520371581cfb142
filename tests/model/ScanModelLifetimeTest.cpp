#include <memory>
#include <optional>

#include <gtest/gtest.h>

#include "model/ScanModel.h"
#include "support/ScanModelHarness.h"

namespace Loadwick {

namespace {

using Harness = ScanModelHarness;

constexpr Harness::Stage everyRunningStage[] = {Harness::folderCheck, Harness::probing,
                                                Harness::reporting};

} // namespace

TEST(ScanModelLifetimeTest, dropsAnOutcomeAfterTheModelIsDestroyed)
{
    for (const Harness::Stage stage : everyRunningStage) {
        const Harness harness;
        std::optional<LoadedScanModel> model(std::in_place, harness);
        harness.beginScan(*model, stage);
        model.reset();
        harness.dispatcher->runAll();
        EXPECT_EQ(harness.dispatcher->backgroundCount(), 0U);
        EXPECT_EQ(harness.probe->runs().size(), stage == Harness::folderCheck ? 0U : 1U);
        EXPECT_TRUE(harness.recorded().empty());
    }
}

TEST(ScanModelLifetimeTest, dropsAnOutcomeThatWasPostedBeforeTheModelWasDestroyed)
{
    for (const Harness::Stage stage : everyRunningStage) {
        const Harness harness;
        std::optional<LoadedScanModel> model(std::in_place, harness);
        harness.beginScan(*model, stage);
        harness.dispatcher->runBackground();
        model.reset();
        harness.dispatcher->runPosted();
        EXPECT_EQ(harness.dispatcher->backgroundCount(), 0U);
        EXPECT_TRUE(harness.recorded().empty());
    }
}

TEST(ScanModelLifetimeTest, dropsAFailureToo)
{
    const Harness harness;
    harness.probe->answer = []() -> ProbeResult { throw ProbeError::timedOut(); };
    std::optional<LoadedScanModel> model(std::in_place, harness);
    harness.beginScan(*model, Harness::probing);
    harness.dispatcher->runBackground();
    model.reset();
    harness.dispatcher->runPosted();
    EXPECT_EQ(harness.dispatcher->postedCount(), 0U);
}

TEST(ScanModelLifetimeTest, keepsItsCollaboratorsAliveForARunningStage)
{
    const Harness harness;
    auto probe = std::make_shared<FakeProbe>();
    const std::weak_ptr<FakeProbe> witness = probe;
    ScanModel::Collaborators collaborators = harness.collaborators();
    collaborators.probeRunner = std::move(probe);
    std::optional<LoadedScanModel> model(std::in_place, harness, std::move(collaborators));
    harness.beginScan(*model, Harness::probing);
    model.reset();
    EXPECT_FALSE(witness.expired());
    harness.dispatcher->runAll();
    EXPECT_TRUE(witness.expired());
}

TEST(ScanModelLifetimeTest, letsASecondModelScanWhileAStageOfTheFirstIsStillRunning)
{
    const Harness harness;
    std::optional<LoadedScanModel> first(std::in_place, harness);
    harness.beginScan(*first, Harness::probing);
    first.reset();
    ScanModel second(harness.collaborators());
    second.select(harness.repository());
    second.scan();
    harness.dispatcher->runAll();
    EXPECT_EQ(harness.probe->runs().size(), 2U);
    EXPECT_EQ(second.history().get().size(), 1U);
}

} // namespace Loadwick
