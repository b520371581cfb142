#include "support/ProcessMemory.h"

#include <string>

#include <gtest/gtest.h>

namespace Loadwick {

TEST(ProcessMemorySlowTest, seesThePeakOfFreedMemory)
{
    constexpr std::size_t size = 64U << 20;
    const PeakMemory memory;
    EXPECT_LT(memory.growthInBytes(), size / 4);
    {
        const std::string text(size, 'x');
        EXPECT_EQ(text.back(), 'x');
    }
    // The kernel counts in batches of some pages.
    EXPECT_GE(memory.growthInBytes(), size - (1U << 20));
    EXPECT_LT(memory.growthInBytes(), size + size / 4);
    const PeakMemory later;
    EXPECT_LT(later.growthInBytes(), size / 4);
}

} // namespace Loadwick
