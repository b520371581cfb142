#include "support/RecordedScanBuilder.h"

#include <gtest/gtest.h>

namespace Loadwick {

TEST(RecordedScanBuilderTest, buildsAWholeScanFromNothing)
{
    const RecordedScan scan = RecordedScanBuilder().build();
    EXPECT_FALSE(scan.repositoryName.empty());
    EXPECT_FALSE(scan.repositoryPath.empty());
    EXPECT_GT(scan.total, 0);
    EXPECT_TRUE(scan.categories.empty());
}

TEST(RecordedScanBuilderTest, takesWhatItIsTold)
{
    const RecordedScan scan = RecordedScanBuilder()
                                  .named("shop")
                                  .in("/srv/shop")
                                  .at(60)
                                  .ofTotal(7)
                                  .withCategory("Tools", 3)
                                  .withCategory("Memory", 4)
                                  .build();
    EXPECT_EQ(scan.repositoryName, "shop");
    EXPECT_EQ(scan.repositoryPath, "/srv/shop");
    EXPECT_EQ(scan.date.time_since_epoch().count(), 60);
    EXPECT_EQ(scan.total, 7);
    EXPECT_EQ(scan.categories, (std::vector<RecordedCategory>{{.name = "Tools", .tokens = 3},
                                                              {.name = "Memory", .tokens = 4}}));
}

TEST(RecordedScanBuilderTest, givesEveryBuilderItsOwnIdentifier)
{
    EXPECT_NE(RecordedScanBuilder().build().id, RecordedScanBuilder().build().id);
}

} // namespace Loadwick
