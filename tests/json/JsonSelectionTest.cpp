#include "json/JsonSelection.h"

#include <gtest/gtest.h>

namespace Loadwick {

TEST(JsonSelectionTest, wantsTheNamedMembersWhole)
{
    const auto selection = JsonSelection::ofPaths({"a", "b"});
    EXPECT_FALSE(selection.isWhole());
    ASSERT_NE(selection.member("a"), nullptr);
    EXPECT_TRUE(selection.member("a")->isWhole());
    EXPECT_TRUE(selection.member("b")->isWhole());
    EXPECT_EQ(selection.member("c"), nullptr);
}

TEST(JsonSelectionTest, wantsPartOfAMemberOnThePath)
{
    const auto selection = JsonSelection::ofPaths({"a.b.c", "a.d"});
    ASSERT_NE(selection.member("a"), nullptr);
    EXPECT_FALSE(selection.member("a")->isWhole());
    EXPECT_TRUE(selection.member("a")->member("b")->member("c")->isWhole());
    EXPECT_TRUE(selection.member("a")->member("d")->isWhole());
    EXPECT_EQ(selection.member("a.d"), nullptr);
}

TEST(JsonSelectionTest, wantsAMemberWholeThatIsNamedWithAPartOfIt)
{
    EXPECT_TRUE(JsonSelection::ofPaths({"a", "a.b"}).member("a")->isWhole());
    EXPECT_TRUE(JsonSelection::ofPaths({"a.b", "a"}).member("a")->isWhole());
}

TEST(JsonSelectionTest, wantsScalarsOnlyAtTheEndsOfPaths)
{
    const auto scalars = JsonSelection::ofPaths({"a", "b.c"}, JsonSelection::Values::scalars);
    EXPECT_TRUE(scalars.member("a")->isScalar());
    EXPECT_FALSE(scalars.member("b")->isScalar());
    EXPECT_TRUE(scalars.member("b")->member("c")->isScalar());
    EXPECT_FALSE(JsonSelection::ofPaths({"a"}).member("a")->isScalar());
}

TEST(JsonSelectionTest, wantsNothingWithoutPaths)
{
    EXPECT_EQ(JsonSelection::ofPaths({}).member(""), nullptr);
}

} // namespace Loadwick
