#include "report/RepoSelection.h"

#include <gtest/gtest.h>

namespace Loadwick {

TEST(RepoSelectionTest, isNamedAfterItsFolder)
{
    const RepoSelection selection = RepoSelection::fromUrl("/home/ada/code/webshop");
    EXPECT_EQ(selection.displayName, "webshop");
    EXPECT_EQ(selection.id(), "/home/ada/code/webshop");
    EXPECT_EQ(selection.path(), "/home/ada/code/webshop");
}

TEST(RepoSelectionTest, isIdentifiedByItsPathNotByItsName)
{
    const RepoSelection first{.url = "/code/webshop", .displayName = "Shop"};
    const RepoSelection second{.url = "/code/webshop", .displayName = "Webshop"};
    EXPECT_NE(first, second);
    EXPECT_EQ(first.id(), second.id());
    EXPECT_EQ(first, (RepoSelection{.url = "/code/webshop", .displayName = "Shop"}));
    EXPECT_NE(first, (RepoSelection{.url = "/code/other", .displayName = "Shop"}));
}

TEST(RepoSelectionTest, dropsATrailingSlash)
{
    for (const char *url : {"/code/webshop/", "/code/webshop//"}) {
        const RepoSelection selection = RepoSelection::fromUrl(url);
        EXPECT_EQ(selection.displayName, "webshop") << url;
        EXPECT_EQ(selection.id(), "/code/webshop") << url;
    }
}

TEST(RepoSelectionTest, namesTheRootSlash)
{
    const RepoSelection selection = RepoSelection::fromUrl("/");
    EXPECT_EQ(selection.displayName, "/");
    EXPECT_EQ(selection.id(), "/");
}

TEST(RepoSelectionTest, keepsTheBytesAndShowsTheReplacementCharacter)
{
    const std::filesystem::path url("/code/caf\xE9");
    const RepoSelection selection = RepoSelection::fromUrl(url);
    EXPECT_EQ(selection.url.native(), "/code/caf\xE9");
    EXPECT_EQ(selection.displayName, "caf\uFFFD");
    EXPECT_EQ(selection.id(), "/code/caf\uFFFD");
}

TEST(RepoSelectionTest, keepsEveryNameUnchanged)
{
    for (const std::string &name :
         {std::string("<img src=x>"), std::string("two\nlines"), std::string(255, 'n')})
        EXPECT_EQ(RepoSelection::fromUrl("/code/" + name).displayName, name);
}

} // namespace Loadwick
