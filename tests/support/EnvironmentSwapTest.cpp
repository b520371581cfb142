#include "support/EnvironmentSwap.h"

#include <cstdlib>

#include <gtest/gtest.h>
#include <unistd.h>

namespace Loadwick {

TEST(EnvironmentSwapTest, showsOnlyItsEntries)
{
    const EnvironmentSwap swap({"LOADWICK_A=1"});
    EXPECT_STREQ(std::getenv("LOADWICK_A"), "1");
    EXPECT_EQ(std::getenv("PATH"), nullptr);
}

TEST(EnvironmentSwapTest, restoresTheOldEnvironment)
{
    char **const before = environ;
    {
        const EnvironmentSwap swap({"LOADWICK_A=1"});
        EXPECT_NE(environ, before);
    }
    EXPECT_EQ(environ, before);
    EXPECT_EQ(std::getenv("LOADWICK_A"), nullptr);
}

} // namespace Loadwick
