#include "probe/MemoryBlock.h"

#include <limits>
#include <new>
#include <utility>

#include <gtest/gtest.h>

namespace Loadwick {

TEST(MemoryBlockTest, canBeWrittenToItsEnd)
{
    const MemoryBlock block(100'000);
    ASSERT_EQ(block.bytes().size(), 100'000U);
    block.bytes().front() = 'a';
    block.bytes().back() = 'z';
    EXPECT_EQ(block.bytes()[1], '\0');
    EXPECT_EQ(block.bytes().back(), 'z');
}

TEST(MemoryBlockTest, hasOneOwnerAtATime)
{
    MemoryBlock first(10);
    first.bytes()[0] = 'a';
    MemoryBlock second = std::move(first);
    EXPECT_TRUE(first.bytes().empty());
    MemoryBlock third(20);
    third = std::move(second);
    EXPECT_EQ(third.bytes().size(), 10U);
    EXPECT_EQ(third.bytes()[0], 'a');
}

TEST(MemoryBlockTest, saysWhenThereIsNoMemory)
{
    EXPECT_THROW(MemoryBlock(std::numeric_limits<std::size_t>::max() / 4), std::bad_alloc);
}

} // namespace Loadwick
