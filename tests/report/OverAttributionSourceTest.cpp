#include "report/OverAttributionSource.h"

#include <gtest/gtest.h>

namespace Loadwick {

TEST(OverAttributionSourceTest, isNamedLikeItsCase)
{
    EXPECT_EQ(OverAttributionSource(OverAttributionSource::selfReported).rawValue(),
              "selfReported");
    EXPECT_EQ(OverAttributionSource(OverAttributionSource::localEstimate).rawValue(),
              "localEstimate");
    EXPECT_EQ(OverAttributionSource(OverAttributionSource::combined).rawValue(), "combined");
}

TEST(OverAttributionSourceTest, comesBackFromItsName)
{
    for (const OverAttributionSource source :
         {OverAttributionSource::selfReported, OverAttributionSource::localEstimate,
          OverAttributionSource::combined})
        EXPECT_EQ(OverAttributionSource::fromRawValue(OverAttributionSource(source).rawValue()),
                  source);
    for (const char *text : {"", "Combined", "remainder"})
        EXPECT_FALSE(OverAttributionSource::fromRawValue(text)) << text;
}

} // namespace Loadwick
