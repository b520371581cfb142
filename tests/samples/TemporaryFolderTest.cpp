#include "samples/TemporaryFolder.h"

#include <optional>

#include <gtest/gtest.h>

namespace Loadwick {

TEST(TemporaryFolderTest, removesEverythingAtTheEnd)
{
    std::optional<TemporaryFolder> folder(std::in_place);
    const std::filesystem::path path = folder->path();
    const std::filesystem::path inner = folder->write("a/b/c.txt", "content");
    EXPECT_EQ(contentOf(inner), "content");
    std::filesystem::permissions(path / "a/b", std::filesystem::perms::none);
    folder.reset();
    EXPECT_FALSE(std::filesystem::exists(path));
}

TEST(TemporaryFolderTest, writesExecutableScripts)
{
    const TemporaryFolder folder;
    const std::filesystem::path script = folder.writeScript("run", "#!/bin/sh\nexit 3\n");
    EXPECT_NE(std::filesystem::status(script).permissions() & std::filesystem::perms::owner_exec,
              std::filesystem::perms::none);
}

TEST(TemporaryFolderTest, listsTheEntriesOfAFolderInOrder)
{
    const TemporaryFolder folder;
    EXPECT_TRUE(namesIn(folder.path()).empty());
    folder.write("b", "");
    folder.write("a/inner", "");
    folder.write(".hidden", "");
    EXPECT_EQ(namesIn(folder.path()), (std::vector<std::string>{".hidden", "a", "b"}));
}

} // namespace Loadwick
