#include "process/BoundedCall.h"

#include <future>
#include <stdexcept>

#include <gtest/gtest.h>

namespace Loadwick {

using namespace std::chrono_literals;

TEST(BoundedCallTest, returnsTheValueOfACallThatEndsInTime)
{
    EXPECT_EQ(callWithin(30s, [] { return 42; }), 42);
}

TEST(BoundedCallTest, returnsNothingAfterItsLimit)
{
    std::promise<void> release;
    const std::shared_future<void> released = release.get_future().share();
    EXPECT_EQ(callWithin(20ms,
                         [released] {
                             released.wait();
                             return 42;
                         }),
              std::nullopt);
    release.set_value();
}

TEST(BoundedCallTest, returnsNothingWithAZeroLimit)
{
    EXPECT_EQ(callWithin(0s, [] { return 42; }), std::nullopt);
    EXPECT_EQ(callWithin(-1s, [] { return 42; }), std::nullopt);
}

TEST(BoundedCallTest, rethrowsAnException)
{
    EXPECT_THROW((void)callWithin(30s, []() -> int { throw std::runtime_error("no"); }),
                 std::runtime_error);
}

} // namespace Loadwick
