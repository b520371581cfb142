#include "support/Stopwatch.h"

#include <thread>

#include <gtest/gtest.h>

namespace Loadwick {

TEST(StopwatchTest, countsSecondsSinceItWasMade)
{
    const Stopwatch watch;
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
    EXPECT_GE(watch.seconds(), 0.02);
}

} // namespace Loadwick
