#include "support/UnicodeMemory.h"

#include <gtest/gtest.h>

#include "text/UnicodeText.h"

namespace Loadwick {

TEST(UnicodeMemoryTest, limitsTheSearchForCharacters)
{
    loadCharacterRules();
    const UnicodeMemory memory(0);
    EXPECT_FALSE(memory.ranOut());
    EXPECT_THROW(static_cast<void>(byteCountOfCharacters("é", 1)), std::bad_alloc);
    EXPECT_TRUE(memory.ranOut());
}

TEST(UnicodeMemoryTest, isUnlimitedAfterwards)
{
    {
        const UnicodeMemory memory(1'000'000);
        EXPECT_EQ(byteCountOfCharacters("éa", 1), 2U);
        EXPECT_FALSE(memory.ranOut());
    }
    EXPECT_EQ(byteCountOfCharacters("éa", 1), 2U);
}

} // namespace Loadwick
