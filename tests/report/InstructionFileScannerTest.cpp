#include "report/InstructionFileScanner.h"

#include <algorithm>

#include <gtest/gtest.h>
#include <sys/stat.h>

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

TEST_F(InstructionFileScannerTest, inheritsNothingBelowASiblingOfTheHomeFolder)
{
    folder.write("home2/CLAUDE.md", "x");
    folder.write("home2/shop/CLAUDE.md", "x");
    EXPECT_TRUE(scanner().scanSynchronously(folder.path() / "home2/shop").inheritedFiles.empty());
}

TEST_F(InstructionFileScannerTest, inheritsOnlyFromTheHomeFolderRightBelowIt)
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

TEST_F(InstructionFileScannerTest, acceptsTheHomeFolderAsTheRepository)
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

TEST_F(InstructionFileScannerTest, findsTheSameOnABackgroundThread)
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

TEST_F(InstructionFileScannerTest, returnsItsFindingsWhenTheTimeIsUp)
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

TEST_F(InstructionFileScannerTest, hasFixedDefaults)
{
    const InstructionFileScanner::Settings settings{.home = "/"};
    EXPECT_EQ(settings.maxImportDepth, 5);
    EXPECT_EQ(settings.limitSeconds, 30.0);
    EXPECT_EQ(InstructionFileScanner::importSearchLimit, 4'000'000);
}

TEST_F(InstructionFileScannerTest, listsAFileImportedTwiceOrByItselfOnce)
{
    writeOwn("CLAUDE.md", "@CLAUDE.md @a.md\n@./a.md @sub/../a.md");
    writeOwn("a.md", "@a.md @CLAUDE.md");
    EXPECT_EQ(ownFiles(), (Paths{"CLAUDE.md", "a.md"}));
}

TEST_F(InstructionFileScannerTest, listsOnlyTheFirstNameOfALinkedFile)
{
    writeOwn("AGENTS.md", "four");
    std::filesystem::create_symlink("AGENTS.md", root() / "CLAUDE.md");
    EXPECT_EQ(scanned().repositoryFiles,
              (std::vector<InstructionFileEstimate>{{root() / "CLAUDE.md", 4, 1}}));
}

TEST_F(InstructionFileScannerTest, listsAFileBehindALinkedFolderOnce)
{
    writeOwn("CLAUDE.md", "@docs/a.md @link/a.md @link/b.md @docs/b.md @docs/./a.md @docs//a.md");
    writeOwn("docs/a.md", "");
    writeOwn("docs/b.md", "");
    std::filesystem::create_directory_symlink("docs", root() / "link");
    EXPECT_EQ(ownFiles(), (Paths{"CLAUDE.md", "docs/a.md", "link/b.md"}));
}

TEST_F(InstructionFileScannerTest, followsImportsDepthFirst)
{
    writeOwn("CLAUDE.md", "@a.md @b.md");
    writeOwn("a.md", "@sub/c.md");
    writeOwn("b.md", "");
    writeOwn("sub/c.md", "@d.md");
    writeOwn("sub/d.md", "");
    writeOwn("AGENTS.md", "");
    EXPECT_EQ(ownFiles(),
              (Paths{"CLAUDE.md", "a.md", "sub/c.md", "sub/d.md", "b.md", "AGENTS.md"}));
}

TEST_F(InstructionFileScannerTest, stopsAChainOfImportsAtTheFifthLevel)
{
    writeOwn("CLAUDE.md", "@1.md");
    for (int level = 1; level <= 6; ++level)
        writeOwn(std::to_string(level) + ".md", "@" + std::to_string(level + 1) + ".md");
    EXPECT_EQ(ownFiles(), (Paths{"CLAUDE.md", "1.md", "2.md", "3.md", "4.md", "5.md"}));
}

TEST_F(InstructionFileScannerTest, reachesByAShorterPathWhatTheDepthLimitCutOff)
{
    writeOwn("CLAUDE.md", "@1.md @5.md");
    for (const std::string &more : {std::string(), std::string(100'000, '\n')}) {
        for (int level = 1; level <= 6; ++level)
            writeOwn(std::to_string(level) + ".md", "@" + std::to_string(level + 1) + ".md" + more);
        EXPECT_EQ(ownFiles(), (Paths{"CLAUDE.md", "1.md", "2.md", "3.md", "4.md", "5.md", "6.md"}));
    }
}

TEST_F(InstructionFileScannerTest, ignoresImportsInsideAClosedFenceOnly)
{
    writeOwn("CLAUDE.md", "```\n@in.md\n```\n@out.md\n~~~\n@after.md\n");
    for (const char *name : {"in.md", "out.md", "after.md"})
        writeOwn(name, "");
    EXPECT_EQ(ownFiles(), (Paths{"CLAUDE.md", "out.md", "after.md"}));
}

TEST_F(InstructionFileScannerTest, resolvesATildeInTheHomeFolder)
{
    folder.write("home/notes.md", "x");
    folder.write("home/more.md", "x");
    writeOwn("CLAUDE.md", "@~/notes.md @~///more.md @~ @~/");
    EXPECT_EQ(pathsOf(scanned().inheritedFiles), (Paths{"home/notes.md", "home/more.md"}));
    writeOwn("CLAUDE.md", "@~notes.md");
    EXPECT_EQ(pathsOf(scanned().inheritedFiles), Paths{"home/notes.md"});
}

TEST_F(InstructionFileScannerTest, resolvesAnAbsolutePath)
{
    const std::filesystem::path rules = folder.write("outside/rules.md", "@more.md");
    folder.write("outside/more.md", "");
    writeOwn("CLAUDE.md", "@" + rules.native());
    EXPECT_EQ(pathsOf(scanned().inheritedFiles), (Paths{"outside/rules.md", "outside/more.md"}));
}

TEST_F(InstructionFileScannerTest, sortsImportsIntoTiersByPathAndOrigin)
{
    writeOwn("CLAUDE.md", "@../../common.md");
    writeOwn("own.md", "");
    folder.write("home/common.md", "");
    folder.write("home/.claude/CLAUDE.md", "@style.md @~/code/shop/own.md");
    folder.write("home/.claude/style.md", "");
    const InstructionFileSet set = scanned();
    EXPECT_EQ(pathsOf(set.repositoryFiles),
              (Paths{"home/code/shop/CLAUDE.md", "home/code/shop/own.md"}));
    EXPECT_EQ(pathsOf(set.inheritedFiles), Paths{"home/common.md"});
    EXPECT_EQ(pathsOf(set.personalFiles),
              (Paths{"home/.claude/CLAUDE.md", "home/.claude/style.md"}));
}

TEST_F(InstructionFileScannerTest, importsFromASiblingFolderAsInherited)
{
    folder.write("home/code/shop2/a.md", "");
    writeOwn("CLAUDE.md", "@../shop2/a.md");
    EXPECT_EQ(pathsOf(scanned().inheritedFiles), Paths{"home/code/shop2/a.md"});
}

TEST_F(InstructionFileScannerTest, ignoresImportsThatAreNotFiles)
{
    std::filesystem::create_directory(root() / "AGENTS.md");
    std::filesystem::create_symlink("loop.md", root() / "loop.md");
    std::filesystem::create_symlink("nowhere", root() / "dangling.md");
    writeOwn("CLAUDE.md",
             "@missing.md @loop.md @dangling.md @. @CLAUDE.md/x @/dev/null @/dev/zero @" +
                 std::string(300, 'n') + " @" + std::string(5'000, 'p'));
    EXPECT_EQ(ownFiles(), Paths{"CLAUDE.md"});
    EXPECT_TRUE(scanned().unreadablePaths.empty());
}

TEST_F(InstructionFileScannerTest, doesNotOpenAPipe)
{
    ASSERT_EQ(::mkfifo((root() / "CLAUDE.md").c_str(), 0600), 0);
    writeOwn("AGENTS.md", "");
    EXPECT_EQ(ownFiles(), Paths{"AGENTS.md"});
}

TEST_F(InstructionFileScannerTest, treatsAnImportWithANulAsMissing)
{
    using namespace std::string_literals;
    writeOwn("a.md", "");
    writeOwn("CLAUDE.md", "@a.md\0b"s);
    EXPECT_EQ(ownFiles(), Paths{"CLAUDE.md"});
}

TEST_F(InstructionFileScannerTest, saysWhichImportLedToAFileThatIsNotLookedFor)
{
    writeOwn("CLAUDE.md", "@docs/style.md @AGENTS.md");
    writeOwn("docs/style.md", "@tests.md @../CLAUDE.md");
    writeOwn("docs/tests.md", "");
    writeOwn("AGENTS.md", "@docs/tests.md");
    const std::string top = root() / "CLAUDE.md";
    const std::string style = root() / "docs/style.md";
    const InstructionFileSet set = scanned();
    EXPECT_EQ(set.importers, (std::unordered_map<std::string, std::string>{
                                 {style, top},
                                 {root() / "docs/tests.md", style},
                             }));
    EXPECT_EQ(set.importChain(root() / "docs/tests.md"),
              (std::vector<std::string_view>{style, top}));
}

TEST_F(InstructionFileScannerTest, searchesAFileUpToTheLimitForImports)
{
    constexpr auto limit = static_cast<std::size_t>(InstructionFileScanner::importSearchLimit);
    std::string text = "@a.md\n";
    text.resize(limit, ' ');
    writeOwn("a.md", "");
    writeOwn("CLAUDE.md", text);
    EXPECT_EQ(ownFiles(), (Paths{"CLAUDE.md", "a.md"}));
    writeOwn("CLAUDE.md", text + " ");
    EXPECT_EQ(scanned().repositoryFiles,
              (std::vector<InstructionFileEstimate>{{root() / "CLAUDE.md", 4'000'001, 1'000'001}}));
}

TEST_F(InstructionFileScannerTest, countsAnIllFormedFileWithoutItsImports)
{
    writeOwn("a.md", "");
    writeOwn("CLAUDE.md", "@a.md \xFF");
    EXPECT_EQ(ownFiles(), Paths{"CLAUDE.md"});
}

TEST_F(InstructionFileScannerTest, showsReplacementCharactersInAnIllFormedName)
{
    const std::filesystem::path strange = folder.path() / "caf\xE9";
    folder.write("caf\xE9/CLAUDE.md", "@a.md");
    folder.write("caf\xE9/a.md", "");
    const InstructionFileSet set = scanner().scanSynchronously(strange);
    EXPECT_EQ(pathsOf(set.repositoryFiles), (Paths{"caf\uFFFD/CLAUDE.md", "caf\uFFFD/a.md"}));
    EXPECT_EQ(set.importChain(set.repositoryFiles.at(1).path),
              std::vector<std::string_view>{set.repositoryFiles.at(0).path});
}

TEST_F(InstructionFileScannerTest, handlesManyImportsQuickly)
{
    std::string text;
    for (int number = 0; number < 300'000; ++number)
        text += "@CLAUDE.md ";
    writeOwn("CLAUDE.md", text);
    EXPECT_EQ(ownFiles(), Paths{"CLAUDE.md"});
}

} // namespace Loadwick
