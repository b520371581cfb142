#include "support/FakeCompletionStore.h"

#include <gtest/gtest.h>

namespace Loadwick {

TEST(FakeCompletionStoreTest, remembersWhatItWasToldAndHowOften)
{
    FakeCompletionStore store;
    EXPECT_FALSE(store.onboardingCompleted());
    store.setOnboardingCompleted(true);
    EXPECT_TRUE(store.onboardingCompleted());
    store.setOnboardingCompleted(false);
    EXPECT_FALSE(store.onboardingCompleted());
    EXPECT_EQ(store.writes, 2);
}

TEST(FakeCompletionStoreTest, startsAsCompletedWhenAsked)
{
    EXPECT_TRUE(FakeCompletionStore(true).onboardingCompleted());
}

} // namespace Loadwick
