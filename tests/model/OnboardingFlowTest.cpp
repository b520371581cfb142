#include "model/OnboardingFlow.h"

#include <gtest/gtest.h>

#include "support/EnumerationNames.h"
#include "support/ScanFakes.h"
#include "text/OnLinux.h"

namespace Loadwick {

namespace {

class OnboardingFlowTest : public testing::Test
{
protected:
    void advanceTo(int index)
    {
        while (flow.currentIndex() < index)
            flow.advance();
    }

    const std::shared_ptr<FakeCompletionStore> store = std::make_shared<FakeCompletionStore>();
    OnboardingFlow flow{OnboardingCompletion(store)};
};

using Direction = OnboardingFlow::Direction;

} // namespace

TEST_F(OnboardingFlowTest, startsAtTheFirstStepFacingForward)
{
    EXPECT_EQ(flow.currentIndex(), 0);
    EXPECT_EQ(flow.currentStep(), OnboardingFlow::steps[0]);
    EXPECT_EQ(flow.direction(), Direction::forward);
    EXPECT_FALSE(flow.isFinished());
    EXPECT_TRUE(flow.shouldPresent());
    EXPECT_EQ(OnboardingFlow::stepCount(), 4);
    EXPECT_EQ(store->writes, 0);
}

TEST_F(OnboardingFlowTest, advancesStepByStep)
{
    for (int index = 1; index <= 3; ++index) {
        flow.advance();
        EXPECT_EQ(flow.currentIndex(), index);
        EXPECT_EQ(flow.direction(), Direction::forward);
    }
    EXPECT_FALSE(flow.isFinished());
    EXPECT_EQ(store->writes, 0);
}

TEST_F(OnboardingFlowTest, finishesFromTheLastStepAndStaysThere)
{
    advanceTo(3);
    flow.advance();
    EXPECT_TRUE(flow.isFinished());
    EXPECT_EQ(flow.currentIndex(), 3);
    EXPECT_TRUE(store->completed);
    EXPECT_FALSE(flow.shouldPresent());
}

TEST_F(OnboardingFlowTest, goesBackAndRemembersTheDirection)
{
    advanceTo(2);
    flow.goBack();
    EXPECT_EQ(flow.currentIndex(), 1);
    EXPECT_EQ(flow.direction(), Direction::backward);
    flow.advance();
    EXPECT_EQ(flow.direction(), Direction::forward);
}

TEST_F(OnboardingFlowTest, staysAtTheFirstStepWhenGoingBack)
{
    flow.goBack();
    EXPECT_EQ(flow.currentIndex(), 0);
    EXPECT_EQ(flow.direction(), Direction::forward);
}

TEST_F(OnboardingFlowTest, countsSkippingAsCompleting)
{
    advanceTo(1);
    flow.skip();
    EXPECT_TRUE(flow.isFinished());
    EXPECT_EQ(flow.currentIndex(), 1);
    EXPECT_TRUE(store->completed);
}

TEST_F(OnboardingFlowTest, finishesFromAnyStep)
{
    advanceTo(2);
    flow.goBack();
    flow.finish();
    EXPECT_TRUE(flow.isFinished());
    EXPECT_EQ(flow.currentIndex(), 1);
    EXPECT_EQ(flow.direction(), Direction::backward);
    EXPECT_TRUE(store->completed);
}

TEST_F(OnboardingFlowTest, doesNotMoveOnceFinished)
{
    advanceTo(1);
    flow.skip();
    flow.advance();
    flow.goBack();
    EXPECT_EQ(flow.currentIndex(), 1);
    EXPECT_EQ(flow.direction(), Direction::forward);
    EXPECT_EQ(store->writes, 1);
}

TEST_F(OnboardingFlowTest, isNotPresentedOnceCompleted)
{
    const OnboardingFlow later{OnboardingCompletion(std::make_shared<FakeCompletionStore>(true))};
    EXPECT_FALSE(later.shouldPresent());
    EXPECT_EQ(later.currentIndex(), 0);
}

TEST_F(OnboardingFlowTest, numbersItsStepsFromZero)
{
    int index = 0;
    for (const OnboardingStep &step : OnboardingFlow::steps) {
        EXPECT_EQ(step.index, index);
        EXPECT_EQ(step.isFirst(), index == 0);
        EXPECT_EQ(step.showsBack(), index != 0);
        EXPECT_EQ(step.isLast(), index == 3);
        EXPECT_EQ(step.showsSkip(), index != 3);
        EXPECT_EQ(step.primaryTitle, index == 3 ? "Got it" : "Next");
        EXPECT_EQ(step.illustration, OnboardingIllustration::all[static_cast<std::size_t>(index)]);
        ++index;
    }
    EXPECT_EQ(index, OnboardingFlow::stepCount());
}

TEST_F(OnboardingFlowTest, hasFixedTexts)
{
    const auto &steps = OnboardingFlow::steps;
    EXPECT_EQ(steps[0].title, "See what Claude Code loads before it reads a single message");
    EXPECT_EQ(steps[0].body,
              "Every Claude Code session spends some of its context window on startup files — "
              "CLAUDE.md, AGENTS.md, and similar instructions — before you type anything. Loadwick "
              "runs one real scan of a repository and shows you exactly how many tokens that "
              "costs, so you can tell whether your setup is lean or bloated.");
    EXPECT_EQ(steps[0].footnote, std::nullopt);
    EXPECT_EQ(steps[1].title, "Point it at a local git repository");
    EXPECT_EQ(steps[1].body,
              "Pick any folder on this Mac that's a git repository — your own project works well. "
              "Loadwick only reads it locally to run the scan; nothing is uploaded.");
    EXPECT_EQ(steps[1].footnote, "Look for the folder icon in the top-right toolbar.");
    EXPECT_EQ(steps[2].title, "Run one real scan");
    EXPECT_EQ(steps[2].body,
              "Scanning launches one real Claude Code session against the repository and asks it "
              "to report its own startup context — that's why it needs Claude Code installed and "
              "signed in, and takes about 1–2 minutes. You'll see a spinner while it runs; nothing "
              "else in the app is blocked.");
    EXPECT_EQ(steps[2].footnote, "Requires the Claude Code CLI installed and signed in.");
    EXPECT_EQ(steps[3].title, "One number matters most — the rest is a map");
    EXPECT_EQ(steps[3].body,
              "The total token count is measured directly by Claude and is authoritative. The "
              "category and file breakdown underneath is Loadwick's own local estimate, to help "
              "you see where the tokens likely came from.");
    EXPECT_EQ(steps[3].footnote,
              "Total tokens — from Claude, exact. Category breakdown — Loadwick's estimate.");
}

TEST_F(OnboardingFlowTest, saysWhatHoldsOnLinuxWhereABodySpeaksOfTheMac)
{
    for (const OnboardingStep &step : OnboardingFlow::steps)
        EXPECT_EQ(step.platformNote(),
                  step.body.find("this Mac") == std::string_view::npos
                      ? std::nullopt
                      : onLinux("On Linux that is any folder on this computer that your user may "
                                "read."));
}

TEST_F(OnboardingFlowTest, explainsEveryBandInOrder)
{
    const std::string_view rows[][3] = {{"lean", "Lean", "fine as-is"},
                                        {"heavy", "Heavy", "worth trimming"},
                                        {"excessive", "Excessive", "actively hurting the session"}};
    std::size_t row = 0;
    for (const OnboardingLegendEntry &entry : OnboardingFlow::legend) {
        EXPECT_EQ(entry.id(), rows[row][0]);
        EXPECT_EQ(entry.title(), rows[row][1]);
        EXPECT_EQ(entry.detail, rows[row][2]);
        ++row;
    }
    EXPECT_EQ(row, std::size(rows));
}

TEST_F(OnboardingFlowTest, namesItsIllustrations)
{
    expectNames<OnboardingIllustration>(
        {"measureIcon", "toolbarPointer", "scanSpinner", "bandLegend"});
}

TEST_F(OnboardingFlowTest, isPresentedUntilItsCompletionIsMarked)
{
    OnboardingCompletion completion(store);
    EXPECT_FALSE(completion.isComplete());
    EXPECT_TRUE(completion.shouldPresent());
    completion.markComplete();
    EXPECT_TRUE(completion.isComplete());
    EXPECT_FALSE(completion.shouldPresent());
}

TEST_F(OnboardingFlowTest, readsTheCompletionStoreEachTime)
{
    store->completed = true;
    const OnboardingCompletion completion(store);
    EXPECT_FALSE(completion.shouldPresent());
    store->completed = false;
    EXPECT_TRUE(completion.shouldPresent());
}

TEST_F(OnboardingFlowTest, requiresACompletionStore)
{
    EXPECT_DEATH(OnboardingCompletion(nullptr), "needs a store");
}

} // namespace Loadwick
