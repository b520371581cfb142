#include <sys/stat.h>

#include <gtest/gtest.h>

#include "support/InstructionHome.h"

namespace Loadwick {

namespace {

using Paths = std::vector<std::string>;

/// Imports as a whole scan follows them.
class InstructionFileImportTest : public testing::Test, protected InstructionHome
{};

} // namespace

TEST_F(InstructionFileImportTest, listsAFileImportedTwiceOrByItselfOnce)
{
    writeOwn("CLAUDE.md", "@CLAUDE.md @a.md\n@./a.md @sub/../a.md");
    writeOwn("a.md", "@a.md @CLAUDE.md");
    EXPECT_EQ(ownFiles(), (Paths{"CLAUDE.md", "a.md"}));
}

TEST_F(InstructionFileImportTest, listsOnlyTheFirstNameOfALinkedFile)
{
    writeOwn("AGENTS.md", "four");
    std::filesystem::create_symlink("AGENTS.md", root() / "CLAUDE.md");
    EXPECT_EQ(scanned().repositoryFiles,
              (std::vector<InstructionFileEstimate>{{root() / "CLAUDE.md", 4, 1}}));
}

TEST_F(InstructionFileImportTest, listsAFileBehindALinkedFolderOnce)
{
    writeOwn("CLAUDE.md", "@docs/a.md @link/a.md @link/b.md @docs/b.md @docs/./a.md @docs//a.md");
    writeOwn("docs/a.md", "");
    writeOwn("docs/b.md", "");
    std::filesystem::create_directory_symlink("docs", root() / "link");
    EXPECT_EQ(ownFiles(), (Paths{"CLAUDE.md", "docs/a.md", "link/b.md"}));
}

TEST_F(InstructionFileImportTest, followsImportsDepthFirst)
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

TEST_F(InstructionFileImportTest, endsAChainOfImportsAtTheFifthLevel)
{
    writeOwn("CLAUDE.md", "@1.md");
    for (int level = 1; level <= 6; ++level)
        writeOwn(std::to_string(level) + ".md", "@" + std::to_string(level + 1) + ".md");
    EXPECT_EQ(ownFiles(), (Paths{"CLAUDE.md", "1.md", "2.md", "3.md", "4.md", "5.md"}));
}

TEST_F(InstructionFileImportTest, reachesOnAShorterRoadWhatTheDepthCutOff)
{
    writeOwn("CLAUDE.md", "@1.md @5.md");
    for (int level = 1; level <= 6; ++level)
        writeOwn(std::to_string(level) + ".md", "@" + std::to_string(level + 1) + ".md");
    EXPECT_EQ(ownFiles(), (Paths{"CLAUDE.md", "1.md", "2.md", "3.md", "4.md", "5.md", "6.md"}));
}

TEST_F(InstructionFileImportTest, ignoresImportsInsideAFenceAndReadsOnAfterAnUnclosedOne)
{
    writeOwn("CLAUDE.md", "```\n@in.md\n```\n@out.md\n~~~\n@after.md\n");
    for (const char *name : {"in.md", "out.md", "after.md"})
        writeOwn(name, "");
    EXPECT_EQ(ownFiles(), (Paths{"CLAUDE.md", "out.md", "after.md"}));
}

TEST_F(InstructionFileImportTest, resolvesATildeInTheHomeFolder)
{
    folder.write("home/notes.md", "x");
    folder.write("home/more.md", "x");
    writeOwn("CLAUDE.md", "@~/notes.md @~///more.md @~ @~/");
    EXPECT_EQ(pathsOf(scanned().inheritedFiles), (Paths{"home/notes.md", "home/more.md"}));
    writeOwn("CLAUDE.md", "@~notes.md");
    EXPECT_EQ(pathsOf(scanned().inheritedFiles), Paths{"home/notes.md"});
}

TEST_F(InstructionFileImportTest, resolvesAnAbsolutePath)
{
    const std::filesystem::path rules = folder.write("outside/rules.md", "@more.md");
    folder.write("outside/more.md", "");
    writeOwn("CLAUDE.md", "@" + rules.native());
    EXPECT_EQ(pathsOf(scanned().inheritedFiles), (Paths{"outside/rules.md", "outside/more.md"}));
}

TEST_F(InstructionFileImportTest, sortsImportsIntoTiersByPlaceAndOrigin)
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

TEST_F(InstructionFileImportTest, doesNotTakeASiblingFolderForTheRepository)
{
    folder.write("home/code/shop2/a.md", "");
    writeOwn("CLAUDE.md", "@../shop2/a.md");
    EXPECT_EQ(pathsOf(scanned().inheritedFiles), Paths{"home/code/shop2/a.md"});
}

TEST_F(InstructionFileImportTest, passesOverWhatIsNoFile)
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

TEST_F(InstructionFileImportTest, doesNotOpenAPipe)
{
    ASSERT_EQ(::mkfifo((root() / "CLAUDE.md").c_str(), 0600), 0);
    writeOwn("AGENTS.md", "");
    EXPECT_EQ(ownFiles(), Paths{"AGENTS.md"});
}

TEST_F(InstructionFileImportTest, takesAPathWithANulForMissing)
{
    using namespace std::string_literals;
    writeOwn("a.md", "");
    writeOwn("CLAUDE.md", "@a.md\0b"s);
    EXPECT_EQ(ownFiles(), Paths{"CLAUDE.md"});
}

TEST_F(InstructionFileImportTest, searchesAFileUpToTheLimitForImports)
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

TEST_F(InstructionFileImportTest, countsAFileThatIsNotUtf8WithoutItsImports)
{
    writeOwn("a.md", "");
    writeOwn("CLAUDE.md", "@a.md \xFF");
    EXPECT_EQ(ownFiles(), Paths{"CLAUDE.md"});
}

TEST_F(InstructionFileImportTest, showsTheReplacementCharacterInANameThatIsNotUtf8)
{
    const std::filesystem::path strange = folder.path() / "caf\xE9";
    folder.write("caf\xE9/CLAUDE.md", "@a.md");
    folder.write("caf\xE9/a.md", "");
    const InstructionFileSet set = scanner().scanSynchronously(strange);
    EXPECT_EQ(pathsOf(set.repositoryFiles), (Paths{"caf\uFFFD/CLAUDE.md", "caf\uFFFD/a.md"}));
}

TEST_F(InstructionFileImportTest, endsAtOnceOnManyImports)
{
    std::string text;
    for (int number = 0; number < 300'000; ++number)
        text += "@CLAUDE.md ";
    writeOwn("CLAUDE.md", text);
    EXPECT_EQ(ownFiles(), Paths{"CLAUDE.md"});
}

} // namespace Loadwick
