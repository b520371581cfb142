#include "probe/ProbeRunning.h"

#include <gtest/gtest.h>

namespace Loadwick {

TEST(TotalSourceTest, isNamedByItsCase)
{
    EXPECT_EQ(TotalSource(TotalSource::transcript).rawValue(), "transcript");
    EXPECT_EQ(TotalSource(TotalSource::cliUsage).rawValue(), "cliUsage");
}

TEST(TotalSourceTest, isReadBackFromItsName)
{
    EXPECT_EQ(TotalSource::fromRawValue("transcript"), TotalSource::transcript);
    EXPECT_EQ(TotalSource::fromRawValue("cliUsage"), TotalSource::cliUsage);
}

TEST(TotalSourceTest, hasNoValueForAnotherName)
{
    EXPECT_FALSE(TotalSource::fromRawValue("Transcript"));
    EXPECT_FALSE(TotalSource::fromRawValue("cliusage"));
    EXPECT_FALSE(TotalSource::fromRawValue(""));
}

TEST(TotalSourceTest, saysWhereTheTotalWasRead)
{
    EXPECT_EQ(TotalSource(TotalSource::transcript).label(),
              "session transcript: first assistant message usage");
    EXPECT_EQ(TotalSource(TotalSource::cliUsage).label(),
              "CLI result usage block (no transcript found)");
}

} // namespace Loadwick
