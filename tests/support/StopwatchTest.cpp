#include "support/Stopwatch.h"

#include <thread>

#include <gtest/gtest.h>

namespace Loadwick {

TEST(StopwatchTest, countsTheProcessorTimeOfWork)
{
    const ProcessorTime time;
    volatile unsigned sum = 0;
    for (unsigned step = 0; step < 1'000'000; ++step)
        sum = sum + step;
    EXPECT_GT(time.milliseconds(), 0.1);
}

TEST(StopwatchTest, countsASleepOnlyByTheClock)
{
    const Stopwatch watch;
    const ProcessorTime time;
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
    EXPECT_GE(watch.seconds(), 0.1);
    EXPECT_LT(time.milliseconds(), 50);
}

} // namespace Loadwick
