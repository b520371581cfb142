#include "text/PathText.h"

#include <gtest/gtest.h>

namespace Loadwick {

TEST(PathTextTest, showsAPathAsUtf8)
{
    EXPECT_EQ(pathText("/a/é"), "/a/é");
    EXPECT_EQ(pathText("/caf\xE9/x"), "/caf\uFFFD/x");
    EXPECT_EQ(pathText("/a\nb"), "/a\nb");
    EXPECT_EQ(pathText(""), "");
}

TEST(PathTextTest, removesDotsAndTrailingSlashes)
{
    EXPECT_EQ(standardizedPath("/a/./b/../c/").native(), "/a/c");
    EXPECT_EQ(standardizedPath("/a//b///").native(), "/a/b");
    EXPECT_EQ(standardizedPath("/a/.").native(), "/a");
    EXPECT_EQ(standardizedPath("/a/..").native(), "/");
}

TEST(PathTextTest, keepsTheRoot)
{
    EXPECT_EQ(standardizedPath("/").native(), "/");
    EXPECT_EQ(standardizedPath("//").native(), "/");
    EXPECT_EQ(standardizedPath("/../..").native(), "/");
    EXPECT_EQ(standardizedPath("//a").native(), "/a");
}

TEST(PathTextTest, collapsesTheSlashesOfAJoinedRoot)
{
    EXPECT_EQ(standardizedPath(std::filesystem::path("//") / "a").native(), "/a");
    EXPECT_EQ(standardizedPath(std::filesystem::path("///") / "a" / "b").native(), "/a/b");
}

TEST(PathTextTest, leavesARelativePathRelative)
{
    EXPECT_EQ(standardizedPath("a/../b/").native(), "b");
    EXPECT_EQ(standardizedPath("../a").native(), "../a");
}

TEST(PathTextTest, keepsIllFormedUtf8)
{
    EXPECT_EQ(standardizedPath("/caf\xE9/../\xFF/").native(), "/\xFF");
}

TEST(PathTextTest, leavesAnEmptyPathEmpty)
{
    EXPECT_EQ(standardizedPath("").native(), "");
}

} // namespace Loadwick
