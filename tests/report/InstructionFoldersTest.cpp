#include "report/InstructionFolders.h"

#include <cerrno>
#include <filesystem>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "samples/TemporaryFolder.h"

namespace Loadwick {

namespace {

namespace fs = std::filesystem;

std::size_t openDescriptors()
{
    return static_cast<std::size_t>(
        std::distance(fs::directory_iterator("/proc/self/fd"), fs::directory_iterator()));
}

std::string contentAt(const std::string &path)
{
    InstructionFolders folders;
    RegularFile::Failure failure;
    auto file = InstructionFolders::opened(path, folders.entryAt(path), failure);
    return file ? file->readUpTo(100).value_or("unreadable") : std::to_string(failure.errorNumber);
}

} // namespace

TEST(InstructionFoldersTest, twoNamesOfAFileHaveOneIdentity)
{
    const TemporaryFolder folder;
    const fs::path file = folder.write("deep/a.md", "");
    fs::create_symlink("deep", folder.path() / "link");
    fs::create_symlink("deep/a.md", folder.path() / "b.md");
    InstructionFolders folders;
    for (const char *name : {"deep/a.md", "link/a.md", "b.md"})
        EXPECT_EQ(folders.entryAt(folder.path() / name).identityPath, file) << name;
}

TEST(InstructionFoldersTest, missingPathIsItsOwnIdentity)
{
    const TemporaryFolder folder;
    fs::create_symlink("nowhere", folder.path() / "dangling");
    InstructionFolders folders;
    for (const char *name : {"missing", "missing/a.md", "dangling"}) {
        const std::string path = folder.path() / name;
        EXPECT_EQ(folders.entryAt(path).identityPath, path) << name;
    }
}

TEST(InstructionFoldersTest, reportsTheTypeWithoutFollowingALink)
{
    const TemporaryFolder folder;
    (void)folder.write("a.md", "");
    fs::create_symlink("a.md", folder.path() / "link");
    ASSERT_EQ(::mkfifo((folder.path() / "fifo").c_str(), 0600), 0);
    InstructionFolders folders;
    const auto typeOf = [&](const fs::path &path) { return folders.entryAt(path).type; };
    EXPECT_EQ(typeOf(folder.path() / "a.md"), S_IFREG);
    EXPECT_EQ(typeOf(folder.path() / "link"), S_IFLNK);
    EXPECT_EQ(typeOf(folder.path() / "fifo"), S_IFIFO);
    EXPECT_EQ(typeOf(folder.path() / "missing"), 0U);
    EXPECT_EQ(typeOf(folder.path() / "a.md/below"), 0U);
}

TEST(InstructionFoldersTest, opensAFileAndALinkToOne)
{
    const TemporaryFolder folder;
    const std::string file = folder.write("a.md", "text");
    fs::create_symlink("a.md", folder.path() / "link");
    EXPECT_EQ(contentAt(file), "text");
    EXPECT_EQ(contentAt(folder.path() / "link"), "text");
    EXPECT_EQ(contentAt(folder.path() / "missing"), std::to_string(ENOENT));
    EXPECT_EQ(contentAt(folder.path()), "0") << "not a regular file";
}

TEST(InstructionFoldersTest, findsEntriesOfTheRootAndOfTheCurrentFolder)
{
    InstructionFolders folders;
    EXPECT_EQ(folders.entryAt("/proc").identityPath, "/proc");
    EXPECT_EQ(folders.entryAt("/proc").type, S_IFDIR);
    EXPECT_EQ(folders.entryAt("/").identityPath, "/");
    const TemporaryFolder folder;
    const std::string file = folder.write("a.md", "text");
    const fs::path before = fs::current_path();
    fs::current_path(folder.path());
    EXPECT_EQ(folders.entryAt("a.md").identityPath, file);
    EXPECT_EQ(contentAt("a.md"), "text");
    fs::current_path(before);
}

TEST(InstructionFoldersTest, reachesMoreFoldersThanItHoldsDescriptorsFor)
{
    const TemporaryFolder folder;
    const std::size_t before = openDescriptors();
    {
        InstructionFolders folders;
        for (std::size_t number = 0; number < 2 * InstructionFolders::heldLimit; ++number) {
            const std::string path = folder.write(std::to_string(number) + "/a.md", "text");
            const InstructionFolders::Entry entry = folders.entryAt(path);
            RegularFile::Failure failure;
            ASSERT_TRUE(InstructionFolders::opened(path, entry, failure)) << number;
            ASSERT_EQ(entry.identityPath, path);
        }
        EXPECT_EQ(openDescriptors(), before + InstructionFolders::heldLimit);
    }
    EXPECT_EQ(openDescriptors(), before);
}

} // namespace Loadwick
