#include "posix/FileSystem.h"

#include <map>
#include <string>

#include <dirent.h>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "posix/FileDescriptor.h"
#include "samples/TemporaryFolder.h"
#include "support/EnvironmentSwap.h"
#include "support/PlainPermissions.h"

namespace Loadwick {

namespace {

namespace fs = std::filesystem;

using EntryKind = FileSystem::EntryKind;
using Entries = std::map<std::string, EntryKind>;

Entries entriesOf(const fs::path &folder)
{
    Entries entries;
    PosixFileSystem().list(folder, [&](const std::string &name, EntryKind kind) {
        entries.emplace(name, kind);
        return FileSystem::Walk::proceed;
    });
    return entries;
}

} // namespace

TEST(FileSystemTest, distinguishesFilesFromFolders)
{
    const TemporaryFolder folder;
    (void)folder.write("file", "");
    (void)folder.write("sub/inner", "");
    (void)folder.write(".hidden", "");
    EXPECT_EQ(entriesOf(folder.path()), (Entries{{"file", EntryKind::file},
                                                 {"sub", EntryKind::folder},
                                                 {".hidden", EntryKind::file}}));
}

TEST(FileSystemTest, countsALinkToAFileAsAFile)
{
    const TemporaryFolder folder;
    (void)folder.write("file", "");
    fs::create_directory(folder.path() / "sub");
    fs::create_symlink("file", folder.path() / "toFile");
    fs::create_symlink("sub", folder.path() / "toFolder");
    fs::create_symlink("missing", folder.path() / "toNothing");
    fs::create_symlink("toItself", folder.path() / "toItself");
    const Entries entries = entriesOf(folder.path());
    EXPECT_EQ(entries.at("toFile"), EntryKind::file);
    EXPECT_EQ(entries.at("toFolder"), EntryKind::other);
    EXPECT_EQ(entries.at("toNothing"), EntryKind::other);
    EXPECT_EQ(entries.at("toItself"), EntryKind::other);
}

TEST(FileSystemTest, doesNotCountAFifoAsAFile)
{
    const TemporaryFolder folder;
    ASSERT_EQ(mkfifo((folder.path() / "fifo").c_str(), 0600), 0);
    EXPECT_EQ(entriesOf(folder.path()), (Entries{{"fifo", EntryKind::other}}));
}

TEST(FileSystemTest, returnsNamesAsBytes)
{
    const TemporaryFolder folder;
    (void)folder.write("caf\xE9", "");
    EXPECT_EQ(entriesOf(folder.path()), (Entries{{"caf\xE9", EntryKind::file}}));
}

TEST(FileSystemTest, stopsWhenToldTo)
{
    const TemporaryFolder folder;
    (void)folder.write("a", "");
    (void)folder.write("b", "");
    int visits = 0;
    PosixFileSystem().list(folder.path(), [&](const std::string &, EntryKind) {
        ++visits;
        return FileSystem::Walk::stop;
    });
    EXPECT_EQ(visits, 1);
}

TEST(FileSystemTest, findsNothingUnlessThePathIsAFolder)
{
    const TemporaryFolder folder;
    EXPECT_TRUE(entriesOf(folder.path() / "missing").empty());
    EXPECT_TRUE(entriesOf(folder.write("file", "")).empty());
    EXPECT_TRUE(entriesOf(folder.path().string() + std::string(1, '\0')).empty());
    EXPECT_TRUE(entriesOf("").empty());
}

TEST(FileSystemTest, findsNothingInAnUnreadableFolder)
{
    const TemporaryFolder folder;
    (void)folder.write("sub/file", "");
    fs::permissions(folder.path() / "sub", fs::perms::none);
    const PlainPermissions plain;
    EXPECT_TRUE(entriesOf(folder.path() / "sub").empty());
}

TEST(FileSystemTest, mayHoldAnExistingPath)
{
    const TemporaryFolder folder;
    (void)folder.write("inner/file", "");
    EXPECT_TRUE(PosixFileSystem().mayHold(folder.path() / "inner/file"));
    EXPECT_TRUE(PosixFileSystem().mayHold(folder.path() / "inner"));
    EXPECT_FALSE(PosixFileSystem().mayHold(folder.path() / "other/file"));
}

TEST(FileSystemTest, mayHoldADanglingLinkOrAnUnexaminablePath)
{
    const TemporaryFolder folder;
    fs::create_symlink("missing", folder.path() / "link");
    EXPECT_TRUE(PosixFileSystem().mayHold(folder.path() / "link"));
    (void)folder.write("shut/file", "");
    fs::permissions(folder.path() / "shut", fs::perms::owner_read);
    const PlainPermissions plain;
    EXPECT_TRUE(PosixFileSystem().mayHold(folder.path() / "shut/file"));
}

TEST(FileSystemTest, recognisesALeafFolderWhereTheDiskCountsFolders)
{
    const EnvironmentSwap swap({"TMPDIR=/dev/shm"});
    const TemporaryFolder folder;
    (void)folder.write("flat/file", "");
    (void)folder.write("deep/.hidden/file", "");
    EXPECT_FALSE(PosixFileSystem().mayHoldFolders(folder.path() / "flat"));
    EXPECT_TRUE(PosixFileSystem().mayHoldFolders(folder.path() / "deep"));
    fs::remove_all(folder.path() / "deep/.hidden");
    EXPECT_FALSE(PosixFileSystem().mayHoldFolders(folder.path() / "deep"));
}

TEST(FileSystemTest, rulesOutNoFolderWhereTheDiskDoesNotCount)
{
    const TemporaryFolder folder;
    EXPECT_TRUE(PosixFileSystem().mayHoldFolders("/proc/self/fd")) << "has two links anyway";
    EXPECT_TRUE(PosixFileSystem().mayHoldFolders(folder.path() / "missing"));
}

TEST(FileSystemTest, examinesAnEntryOnlyIfTheListingLacksItsKind)
{
    const TemporaryFolder folder;
    (void)folder.write("file", "");
    fs::create_directory(folder.path() / "folder");
    fs::create_symlink("file", folder.path() / "link");
    fs::create_directory_symlink("folder", folder.path() / "folder link");
    fs::create_symlink("nowhere", folder.path() / "dangling link");
    ASSERT_EQ(mkfifo((folder.path() / "fifo").c_str(), 0600), 0);
    const FileDescriptor open(::open(folder.path().c_str(), O_RDONLY | O_CLOEXEC));
    struct Case
    {
        const char *name;
        unsigned char type;
        EntryKind kind;
    };
    for (const Case &each :
         {Case{"missing", DT_REG, EntryKind::file}, Case{"missing", DT_DIR, EntryKind::folder},
          Case{"missing", DT_FIFO, EntryKind::other}, Case{"link", DT_LNK, EntryKind::file},
          Case{"folder link", DT_LNK, EntryKind::other},
          Case{"dangling link", DT_LNK, EntryKind::other},
          Case{"file", DT_UNKNOWN, EntryKind::file}, Case{"folder", DT_UNKNOWN, EntryKind::folder},
          Case{"link", DT_UNKNOWN, EntryKind::file},
          Case{"folder link", DT_UNKNOWN, EntryKind::other},
          Case{"fifo", DT_UNKNOWN, EntryKind::other},
          Case{"missing", DT_UNKNOWN, EntryKind::other}})
        EXPECT_EQ(folderEntryKind(open.number(), each.name, each.type), each.kind)
            << each.name << " " << static_cast<int>(each.type);
}

} // namespace Loadwick
