#include <gtest/gtest.h>

#include "report/InstructionFileScanner.h"
#include "samples/TemporaryFolder.h"
#include "support/PlainPermissions.h"

namespace Loadwick {

namespace {

using Paths = std::vector<std::string>;

/// Files that exist but are unreadable.
class InstructionFilePermissionsTest : public testing::Test
{
protected:
    std::filesystem::path writeShut(const std::string &name) const
    {
        const std::filesystem::path path = folder.write(name, "text");
        std::filesystem::permissions(path, std::filesystem::perms::none);
        return path;
    }

    InstructionFileSet scanned() const
    {
        const PlainPermissions plain;
        return InstructionFileScanner({.home = folder.path()})
            .scanSynchronously(folder.path() / "shop");
    }

    TemporaryFolder folder;
};

} // namespace

TEST_F(InstructionFilePermissionsTest, listsAnUnopenableFileOnlyAsUnreadable)
{
    const std::filesystem::path shut = writeShut("shop/CLAUDE.md");
    folder.write("shop/AGENTS.md", "");
    const InstructionFileSet set = scanned();
    EXPECT_EQ(set.repositoryFiles,
              (std::vector<InstructionFileEstimate>{{folder.path() / "shop/AGENTS.md", 0, 0}}));
    EXPECT_EQ(set.unreadablePaths, Paths{shut});
}

TEST_F(InstructionFilePermissionsTest, estimatesNoPersonalCategoryFromAnUnreadableFile)
{
    const std::filesystem::path shut = writeShut(".claude/CLAUDE.md");
    folder.write("shop/CLAUDE.md", "text");
    const InstructionFileSet set = scanned();
    EXPECT_TRUE(set.personalFiles.empty());
    EXPECT_EQ(set.unreadablePaths, Paths{shut});
    ASSERT_EQ(set.localCategories().size(), 1U);
    EXPECT_EQ(set.localCategories()[0].name, "Repository instructions");
}

TEST_F(InstructionFilePermissionsTest, listsAFileInAnUnsearchableFolderAsUnreadable)
{
    folder.write("shop/CLAUDE.md", "@shut/a.md @shut/missing.md");
    folder.write("shop/shut/a.md", "");
    std::filesystem::permissions(folder.path() / "shop/shut", std::filesystem::perms::none);
    const InstructionFileSet set = scanned();
    EXPECT_EQ(set.repositoryFiles.size(), 1U);
    EXPECT_EQ(set.unreadablePaths,
              (Paths{folder.path() / "shop/shut/a.md", folder.path() / "shop/shut/missing.md"}));
}

TEST_F(InstructionFilePermissionsTest, sortsUnreadablePathsAndListsEachOnce)
{
    folder.write("shop/CLAUDE.md", "@b.md @a.md @b.md");
    folder.write("shop/AGENTS.md", "@a.md @C.md");
    const Paths expected{writeShut("shop/C.md"), writeShut("shop/a.md"), writeShut("shop/b.md")};
    EXPECT_EQ(scanned().unreadablePaths, expected);
}

TEST_F(InstructionFilePermissionsTest, namesALinkToAnUnreadableFileByTheLink)
{
    writeShut("secret.md");
    std::filesystem::create_directory(folder.path() / "shop");
    std::filesystem::create_symlink("../secret.md", folder.path() / "shop/CLAUDE.md");
    EXPECT_EQ(scanned().unreadablePaths, Paths{folder.path() / "shop/CLAUDE.md"});
}

TEST_F(InstructionFilePermissionsTest, skipsAnUnsearchableFolder)
{
    std::filesystem::create_directories(folder.path() / "shop/CLAUDE.md");
    std::filesystem::permissions(folder.path() / "shop/CLAUDE.md", std::filesystem::perms::none);
    EXPECT_EQ(scanned(), InstructionFileSet::empty);
}

TEST_F(InstructionFilePermissionsTest, obeysPermissionsOnTheThreadOfALimitedScanToo)
{
    const std::filesystem::path shut = writeShut("shop/CLAUDE.md");
    const PlainPermissions plain;
    InstructionFileScanner scanner({.home = folder.path()});
    EXPECT_EQ(scanner.scan(folder.path() / "shop").unreadablePaths, Paths{shut});
}

} // namespace Loadwick
