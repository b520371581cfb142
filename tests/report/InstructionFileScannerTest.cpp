#include "report/InstructionFileScanner.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "support/InstructionHome.h"

namespace Loadwick {

namespace {

using Paths = std::vector<std::string>;

class InstructionFileScannerTest : public testing::Test, protected InstructionHome
{};

} // namespace

TEST_F(InstructionFileScannerTest, findsNothingInAnEmptyRepository)
{
    EXPECT_EQ(scanned(), InstructionFileSet::empty);
    EXPECT_EQ(scanner().scanSynchronously("/no/such/folder"), InstructionFileSet::empty);
}

TEST_F(InstructionFileScannerTest, listsAnEmptyFileWithZeroTokens)
{
    writeOwn("CLAUDE.md", "");
    writeOwn("AGENTS.md", "abc");
    EXPECT_EQ(scanned().repositoryFiles, (std::vector<InstructionFileEstimate>{
                                             {root() / "CLAUDE.md", 0, 0},
                                             {root() / "AGENTS.md", 3, 1},
                                         }));
}

TEST_F(InstructionFileScannerTest, findsTheThreeTiersInOrder)
{
    for (const char *name : {"AGENTS.md", "CLAUDE.local.md", "CLAUDE.md"}) {
        writeOwn(name, "x");
        folder.write(std::string("home/code/") + name, "x");
        folder.write(std::string("home/") + name, "x");
        folder.write(name, "x");
    }
    folder.write("home/.claude/CLAUDE.md", "x");
    const InstructionFileSet set = scanned();
    EXPECT_EQ(pathsOf(set.repositoryFiles),
              (Paths{"home/code/shop/CLAUDE.md", "home/code/shop/CLAUDE.local.md",
                     "home/code/shop/AGENTS.md"}));
    EXPECT_EQ(pathsOf(set.inheritedFiles),
              (Paths{"home/code/CLAUDE.md", "home/code/CLAUDE.local.md", "home/CLAUDE.md",
                     "home/CLAUDE.local.md"}));
    EXPECT_EQ(pathsOf(set.personalFiles), Paths{"home/.claude/CLAUDE.md"});
    EXPECT_TRUE(set.unreadablePaths.empty());
}

TEST_F(InstructionFileScannerTest, inheritsNothingOutsideTheHomeFolder)
{
    folder.write("CLAUDE.md", "x");
    folder.write("outside/CLAUDE.md", "x");
    folder.write("outside/shop/CLAUDE.md", "x");
    folder.write("home/.claude/CLAUDE.md", "x");
    const InstructionFileSet set = scanner().scanSynchronously(folder.path() / "outside/shop");
    EXPECT_EQ(pathsOf(set.repositoryFiles), Paths{"outside/shop/CLAUDE.md"});
    EXPECT_TRUE(set.inheritedFiles.empty());
    EXPECT_EQ(pathsOf(set.personalFiles), Paths{"home/.claude/CLAUDE.md"});
}

TEST_F(InstructionFileScannerTest, doesNotTakeASiblingOfTheHomeFolderForAFolderInIt)
{
    folder.write("home2/CLAUDE.md", "x");
    folder.write("home2/shop/CLAUDE.md", "x");
    EXPECT_TRUE(scanner().scanSynchronously(folder.path() / "home2/shop").inheritedFiles.empty());
}

TEST_F(InstructionFileScannerTest, inheritsOnlyFromTheHomeFolderDirectlyBelowIt)
{
    folder.write("CLAUDE.md", "x");
    folder.write("home/CLAUDE.md", "x");
    const InstructionFileSet set = scanner().scanSynchronously(home() / "code");
    EXPECT_EQ(pathsOf(set.inheritedFiles), Paths{"home/CLAUDE.md"});
}

TEST_F(InstructionFileScannerTest, searchesAtMostSixtyFourFoldersAbove)
{
    std::string deep = "home";
    for (int depth = 0; depth < 66; ++depth) {
        folder.write(deep + "/CLAUDE.md", "x");
        deep += "/d";
    }
    std::filesystem::create_directories(folder.path() / deep);
    const InstructionFileSet set = scanner().scanSynchronously(folder.path() / deep);
    EXPECT_EQ(set.inheritedFiles.size(), 64U);
    EXPECT_EQ(pathsOf(set.inheritedFiles).back(), "home/d/d/CLAUDE.md");
}

TEST_F(InstructionFileScannerTest, takesTheHomeFolderItselfForARepository)
{
    folder.write("home/CLAUDE.md", "x");
    folder.write("home/.claude/CLAUDE.md", "x");
    const InstructionFileSet set = scanner().scanSynchronously(home());
    EXPECT_EQ(pathsOf(set.repositoryFiles), (Paths{"home/CLAUDE.md", "home/.claude/CLAUDE.md"}));
    EXPECT_TRUE(set.inheritedFiles.empty());
    EXPECT_TRUE(set.personalFiles.empty());
}

TEST_F(InstructionFileScannerTest, standardizesTheRepositoryAndTheHomeFolder)
{
    writeOwn("CLAUDE.md", "x");
    folder.write("home/CLAUDE.md", "x");
    InstructionFileScanner other({.home = (home() / "code/..").string() + "/"});
    const InstructionFileSet set = other.scanSynchronously(root() / "../shop/");
    EXPECT_EQ(pathsOf(set.repositoryFiles), Paths{"home/code/shop/CLAUDE.md"});
    EXPECT_EQ(pathsOf(set.inheritedFiles), Paths{"home/CLAUDE.md"});
}

TEST_F(InstructionFileScannerTest, scansOffTheThreadWithTheSameResult)
{
    writeOwn("CLAUDE.md", "@a.md @~/notes.md");
    writeOwn("a.md", "@b.md");
    folder.write("home/notes.md", "x");
    folder.write("home/.claude/CLAUDE.md", "x");
    InstructionFileScanner own = scanner();
    InstructionFileScanning &scanning = own;
    EXPECT_EQ(scanning.scan(root()), scanned());
    EXPECT_EQ(scanned().allFiles().size(), 4U);
}

TEST_F(InstructionFileScannerTest, givesWhatWasFoundWhenTheTimeIsUp)
{
    std::string text;
    for (int number = 0; number < 600; ++number) {
        const std::string name = std::to_string(number) + ".md";
        writeOwn(name, "");
        text += "@" + name + "\n";
    }
    writeOwn("CLAUDE.md", text);
    const std::vector<InstructionFileEstimate> all = scanned().repositoryFiles;
    ASSERT_EQ(all.size(), 601U);
    for (const double limitSeconds : {0.0, 0.0005, 0.002}) {
        InstructionFileScanner hurried({.home = home(), .limitSeconds = limitSeconds});
        const std::vector<InstructionFileEstimate> found = hurried.scan(root()).repositoryFiles;
        ASSERT_LE(found.size(), all.size());
        EXPECT_TRUE(std::equal(found.begin(), found.end(), all.begin())) << limitSeconds;
    }
}

TEST_F(InstructionFileScannerTest, hasTheLimitsOfTheProgram)
{
    const InstructionFileScanner::Settings settings{.home = "/"};
    EXPECT_EQ(settings.maxImportDepth, 5);
    EXPECT_EQ(settings.limitSeconds, 30.0);
    EXPECT_EQ(InstructionFileScanner::importSearchLimit, 4'000'000);
}

} // namespace Loadwick
