#include "model/OnboardingCompletion.h"

#include <gtest/gtest.h>

#include "support/ScanFakes.h"

namespace Loadwick {

TEST(OnboardingCompletionTest, presentsUntilItIsComplete)
{
    const auto store = std::make_shared<FakeCompletionStore>();
    OnboardingCompletion completion(store);
    EXPECT_FALSE(completion.isComplete());
    EXPECT_TRUE(completion.shouldPresent());
    completion.markComplete();
    EXPECT_TRUE(completion.isComplete());
    EXPECT_FALSE(completion.shouldPresent());
}

TEST(OnboardingCompletionTest, asksTheStoreEachTime)
{
    const auto store = std::make_shared<FakeCompletionStore>(true);
    const OnboardingCompletion completion(store);
    EXPECT_FALSE(completion.shouldPresent());
    store->completed = false;
    EXPECT_TRUE(completion.shouldPresent());
}

TEST(OnboardingCompletionTest, endsTheProgramWithoutAStore)
{
    EXPECT_DEATH(OnboardingCompletion(nullptr), "needs a store");
}

} // namespace Loadwick
