#include "probe/TranscriptLocator.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "posix/FileSystem.h"
#include "samples/TemporaryFolder.h"
#include "support/EnvironmentSwap.h"
#include "support/InMemoryFileSystem.h"
#include "support/PlainPermissions.h"

namespace Loadwick {

namespace {

namespace fs = std::filesystem;

using EntryKind = FileSystem::EntryKind;
using TranscriptLocator::defaultProjectsRoot;
using TranscriptLocator::normalizedConfigDir;

std::optional<fs::path> found(std::string_view sessionID, const fs::path &root)
{
    return TranscriptLocator::find(sessionID, root, PosixFileSystem());
}

} // namespace

TEST(TranscriptLocatorTest, looksInTheHomeFolderByDefault)
{
    EXPECT_EQ(defaultProjectsRoot("/home/u", {}), "/home/u/.claude/projects");
    EXPECT_EQ(defaultProjectsRoot("/home/u", {{"OTHER", "/x"}}), "/home/u/.claude/projects");
}

TEST(TranscriptLocatorTest, looksInTheConfigurationFolderWhenThereIsOne)
{
    EXPECT_EQ(defaultProjectsRoot("/home/u", {{"CLAUDE_CONFIG_DIR", " /c/./d/../e/ "}}),
              "/c/e/projects");
}

TEST(TranscriptLocatorTest, resolvesARelativeConfigurationFolderAgainstTheCurrentFolder)
{
    EXPECT_EQ(defaultProjectsRoot("/home/u", {{"CLAUDE_CONFIG_DIR", "conf"}}),
              fs::current_path() / "conf/projects");
}

TEST(TranscriptLocatorTest, looksInTheHomeFolderWhenTheConfigurationFolderIsBlank)
{
    EXPECT_EQ(defaultProjectsRoot("/home/u", {{"CLAUDE_CONFIG_DIR", "  \t\n"}}),
              "/home/u/.claude/projects");
    EXPECT_EQ(defaultProjectsRoot("/home/u", {{"CLAUDE_CONFIG_DIR", ""}}),
              "/home/u/.claude/projects");
}

TEST(TranscriptLocatorTest, standardisesAConfigurationFolder)
{
    EXPECT_EQ(normalizedConfigDir("/a/b/", "/w"), "/a/b");
    EXPECT_EQ(normalizedConfigDir("/a/./b//c/../d", "/w"), "/a/b/d");
    EXPECT_EQ(normalizedConfigDir("/..", "/w"), "/");
    EXPECT_EQ(normalizedConfigDir("//a", "/w"), "/a");
    EXPECT_EQ(normalizedConfigDir("/a b", "/w"), "/a b");
}

TEST(TranscriptLocatorTest, makesARelativeConfigurationFolderAbsolute)
{
    EXPECT_EQ(normalizedConfigDir("conf", "/w/x"), "/w/x/conf");
    EXPECT_EQ(normalizedConfigDir("../conf", "/w/x"), "/w/conf");
    EXPECT_EQ(normalizedConfigDir(".", "/w/x"), "/w/x");
}

TEST(TranscriptLocatorTest, trimsAConfigurationFolder)
{
    EXPECT_EQ(normalizedConfigDir(" \n/a\t\u00A0", "/w"), "/a");
    EXPECT_FALSE(normalizedConfigDir("", "/w"));
    EXPECT_FALSE(normalizedConfigDir(" \n\t", "/w"));
}

TEST(TranscriptLocatorTest, expandsALeadingTilde)
{
    const EnvironmentSwap swap({"HOME=/home/u/"});
    EXPECT_EQ(normalizedConfigDir("~", "/w"), "/home/u");
    EXPECT_EQ(normalizedConfigDir("~/", "/w"), "/home/u");
    EXPECT_EQ(normalizedConfigDir(" ~/a/../b ", "/w"), "/home/u/b");
}

TEST(TranscriptLocatorTest, keepsAnyOtherTilde)
{
    const EnvironmentSwap swap({"HOME=/home/u"});
    EXPECT_EQ(normalizedConfigDir("~other/x", "/w"), "/w/~other/x");
    EXPECT_EQ(normalizedConfigDir("/a/~/b", "/w"), "/a/~/b");
}

TEST(TranscriptLocatorTest, keepsTheBytesOfAConfigurationFolder)
{
    EXPECT_EQ(normalizedConfigDir("/caf\xE9", "/w"), "/caf\xE9");
}

TEST(TranscriptLocatorTest, findsAFileAtAnyDepth)
{
    const TemporaryFolder folder;
    (void)folder.write("one/other.jsonl", "");
    const fs::path deep = folder.write("one/two/three/s-1.jsonl", "");
    const fs::path shallow = folder.write("s-2.jsonl", "");
    EXPECT_EQ(found("s-1", folder.path()), deep);
    EXPECT_EQ(found("s-2", folder.path()), shallow);
    EXPECT_FALSE(found("s-3", folder.path()));
}

TEST(TranscriptLocatorTest, comparesNamesExactly)
{
    const TemporaryFolder folder;
    (void)folder.write("a/S.jsonl", "");
    (void)folder.write("a/s.jsonl.bak", "");
    (void)folder.write("a/xs.jsonl", "");
    (void)folder.write("a/s.json", "");
    EXPECT_FALSE(found("s", folder.path()));
}

TEST(TranscriptLocatorTest, findsNothingInAHiddenFolder)
{
    const TemporaryFolder folder;
    (void)folder.write(".hidden/s.jsonl", "");
    (void)folder.write("a/.hidden/b/s.jsonl", "");
    EXPECT_FALSE(found("s", folder.path()));
}

TEST(TranscriptLocatorTest, searchesARootThatIsItselfHidden)
{
    const TemporaryFolder folder;
    const fs::path file = folder.write(".claude/projects/p/s.jsonl", "");
    EXPECT_EQ(found("s", folder.path() / ".claude/projects"), file);
}

TEST(TranscriptLocatorTest, findsNothingUnderARootThatIsMissing)
{
    const TemporaryFolder folder;
    EXPECT_FALSE(found("s", folder.path() / "missing"));
    EXPECT_FALSE(found("s", folder.write("s.jsonl", "")));
}

TEST(TranscriptLocatorTest, rejectsAnIdentifierThatIsNotAPlainFileName)
{
    const TemporaryFolder folder;
    (void)folder.write("a/s.jsonl", "");
    (void)folder.write(".jsonl", "");
    (void)folder.write("..jsonl", "");
    for (const std::string &sessionID :
         {std::string(), std::string("a/s"), std::string("../a/s"), std::string("."),
          std::string(".s"), std::string("s\0", 2), std::string("/")})
        EXPECT_FALSE(found(sessionID, folder.path())) << sessionID;
}

TEST(TranscriptLocatorTest, looksNowhereForAnIdentifierThatIsNotAPlainFileName)
{
    InMemoryFileSystem fileSystem;
    fileSystem.add("/r/a", EntryKind::folder);
    EXPECT_FALSE(TranscriptLocator::find("../s", "/r", fileSystem));
    EXPECT_TRUE(fileSystem.listed().empty());
}

TEST(TranscriptLocatorTest, followsALinkToAFileButNotToAFolder)
{
    const TemporaryFolder folder;
    (void)folder.write("elsewhere/s.jsonl", "");
    (void)folder.write("elsewhere/t.jsonl", "");
    fs::create_directory(folder.path() / "root");
    fs::create_directory_symlink("../elsewhere", folder.path() / "root/link");
    fs::create_directory_symlink(".", folder.path() / "root/loop");
    fs::create_symlink("../elsewhere/t.jsonl", folder.path() / "root/t.jsonl");
    EXPECT_FALSE(found("s", folder.path() / "root"));
    EXPECT_EQ(found("t", folder.path() / "root"), folder.path() / "root/t.jsonl");
}

TEST(TranscriptLocatorTest, skipsAnUnreadableFolder)
{
    const TemporaryFolder folder;
    (void)folder.write("closed/s.jsonl", "");
    const fs::path open = folder.write("open/s.jsonl", "");
    fs::permissions(folder.path() / "closed", fs::perms::none);
    const PlainPermissions plain;
    EXPECT_EQ(found("s", folder.path()), open);
}

TEST(TranscriptLocatorTest, prefersAFileToAnotherEntryOfItsName)
{
    const TemporaryFolder folder;
    fs::create_directory(folder.path() / "s.jsonl");
    EXPECT_EQ(found("s", folder.path()), folder.path() / "s.jsonl");
    const fs::path file = folder.write("s.jsonl/deeper/s.jsonl", "");
    EXPECT_EQ(found("s", folder.path()), file);
}

TEST(TranscriptLocatorTest, stopsAtTheFirstFile)
{
    InMemoryFileSystem fileSystem;
    fileSystem.add("/r/a", EntryKind::folder);
    fileSystem.add("/r/s.jsonl", EntryKind::file);
    EXPECT_EQ(TranscriptLocator::find("s", "/r", fileSystem), "/r/s.jsonl");
    EXPECT_EQ(fileSystem.listed(), (std::vector<fs::path>{"/r"}));
}

TEST(TranscriptLocatorTest, listsTheMostPromisingFolderNext)
{
    InMemoryFileSystem fileSystem;
    for (const char *folder : {"/r/a", "/r/b", "/r/c", "/r/d"})
        fileSystem.add(folder, EntryKind::folder);
    fileSystem.add("/r/c/s.jsonl", EntryKind::file);
    EXPECT_EQ(TranscriptLocator::find("s", "/r", fileSystem), "/r/c/s.jsonl");
    EXPECT_EQ(fileSystem.listed(), (std::vector<fs::path>{"/r", "/r/c"}));
}

TEST(TranscriptLocatorTest, trustsOnlyAListing)
{
    // A case-insensitive disk finds a name that no folder lists.
    class AnsweringFileSystem : public InMemoryFileSystem
    {
    public:
        [[nodiscard]] bool mayHold(const fs::path &) const override { return true; }
    };
    AnsweringFileSystem fileSystem;
    fileSystem.add("/r/a", EntryKind::folder);
    fileSystem.add("/r/a/S.jsonl", EntryKind::file);
    EXPECT_FALSE(TranscriptLocator::find("s", "/r", fileSystem));
}

TEST(TranscriptLocatorTest, skipsAFolderThatHoldsNeitherTheFileNorFolders)
{
    class CountingFileSystem : public InMemoryFileSystem
    {
    public:
        [[nodiscard]] bool mayHoldFolders(const fs::path &folder) const override
        {
            return folder == "/r/deep";
        }
    };
    CountingFileSystem fileSystem;
    for (const char *folder : {"/r/flat", "/r/deep", "/r/deep/flat", "/r/deep/wanted"})
        fileSystem.add(folder, EntryKind::folder);
    EXPECT_FALSE(TranscriptLocator::find("s", "/r", fileSystem));
    EXPECT_EQ(fileSystem.listed(), (std::vector<fs::path>{"/r", "/r/deep"}));
    fileSystem.add("/r/deep/wanted/s.jsonl", EntryKind::file);
    EXPECT_EQ(TranscriptLocator::find("s", "/r", fileSystem), "/r/deep/wanted/s.jsonl");
}

TEST(TranscriptLocatorTest, findsADanglingLinkInALeafFolder)
{
    const TemporaryFolder folder;
    fs::create_directory(folder.path() / "flat");
    fs::create_symlink("missing", folder.path() / "flat/s.jsonl");
    EXPECT_EQ(found("s", folder.path()), folder.path() / "flat/s.jsonl");
}

TEST(TranscriptLocatorTest, listsNoHiddenFolder)
{
    InMemoryFileSystem fileSystem;
    fileSystem.add("/r/.git", EntryKind::folder);
    fileSystem.add("/r/a", EntryKind::folder);
    EXPECT_FALSE(TranscriptLocator::find("s", "/r", fileSystem));
    EXPECT_EQ(fileSystem.listed(), (std::vector<fs::path>{"/r", "/r/a"}));
}

TEST(TranscriptLocatorTest, walksFoldersOfAnyDepth)
{
    InMemoryFileSystem fileSystem;
    fs::path folder = "/r";
    for (int depth = 0; depth < 500; ++depth) {
        fileSystem.add(folder / "d", EntryKind::folder);
        folder /= "d";
    }
    fileSystem.add(folder / "s.jsonl", EntryKind::file);
    EXPECT_EQ(TranscriptLocator::find("s", "/r", fileSystem), folder / "s.jsonl");
}

TEST(TranscriptLocatorTest, terminatesInATreeDeeperThanTheLongestPath)
{
    const TemporaryFolder folder;
    const fs::path before = fs::current_path();
    fs::current_path(folder.path());
    const std::string name(200, 'd');
    for (int depth = 0; depth < 30; ++depth) {
        fs::create_directory(name);
        fs::current_path(name);
    }
    fs::current_path(before);
    EXPECT_FALSE(found("s", folder.path()));
}

TEST(TranscriptLocatorTest, returnsOneOfTwoEntriesThatAreNotFiles)
{
    const TemporaryFolder folder;
    fs::create_directories(folder.path() / "a/s.jsonl");
    fs::create_directories(folder.path() / "b/s.jsonl");
    const auto path = found("s", folder.path());
    ASSERT_TRUE(path);
    EXPECT_EQ(path->filename(), "s.jsonl");
}

} // namespace Loadwick
