#include "support/GuardedText.h"

#include <string>

#include <gtest/gtest.h>

namespace Loadwick {

TEST(GuardedTextTest, keepsAnyTextAndNoByteBehindIt)
{
    for (const std::size_t length : {0U, 1U, 4096U, 5000U}) {
        const std::string text(length, 'a');
        const GuardedText guarded(text);
        EXPECT_EQ(guarded.view(), text);
        const volatile char *const behind = guarded.view().data() + length;
        EXPECT_DEATH((void)*behind, "");
    }
}

} // namespace Loadwick
