#include <cstdlib>
#include <iostream>
#include <vector>

#include <gtest/gtest.h>

#include "support/ScanModelWalk.h"

namespace Loadwick {

namespace {

/// LOADWICK_WALK_SEED repeats one walk.
std::vector<std::uint32_t> seeds()
{
    if (const char *seed = std::getenv("LOADWICK_WALK_SEED"))
        return {static_cast<std::uint32_t>(std::strtoul(seed, nullptr, 10))};
    return {1, 2, 20260823, 4, 8, 15, 16, 23};
}

constexpr int steps = 2000;

void walk(std::uint32_t seed, ScanModelWalk::Recording recording)
{
    std::cout << "LOADWICK_WALK_SEED=" << seed << std::endl;
    ScanModelWalk walk(seed, recording);
    for (int step = 0; step < steps; ++step) {
        walk.step();
        ASSERT_EQ(walk.difference(), "") << "seed " << seed << ", step " << step;
    }
    EXPECT_GT(walk.endedScans(), steps / 40);
    EXPECT_GT(walk.quits(), 5);
}

} // namespace

TEST(ScanModelWalkTest, agreesWithTheTableOfStatesAfterEveryStep)
{
    for (const std::uint32_t seed : seeds())
        walk(seed, ScanModelWalk::Recording::withStore);
}

TEST(ScanModelWalkTest, agreesWithTheTableWithoutAStoreToo)
{
    walk(seeds().front(), ScanModelWalk::Recording::withoutStore);
}

} // namespace Loadwick
