#include "posix/FolderEntryKind.h"

#include <dirent.h>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "posix/FileDescriptor.h"
#include "samples/TemporaryFolder.h"

namespace Loadwick {

namespace {

namespace fs = std::filesystem;

using EntryKind = FileSystem::EntryKind;

class FolderEntryKindTest : public testing::Test
{
protected:
    FolderEntryKindTest()
    {
        folder.write("file", "");
        fs::create_directory(folder.path() / "folder");
        fs::create_symlink("file", folder.path() / "link");
        fs::create_directory_symlink("folder", folder.path() / "folder link");
        fs::create_symlink("nowhere", folder.path() / "dangling link");
        mkfifo((folder.path() / "fifo").c_str(), 0600);
    }

    EntryKind kindOf(const char *name, unsigned char type) const
    {
        const FileDescriptor open(::open(folder.path().c_str(), O_RDONLY | O_CLOEXEC));
        return folderEntryKind(open.number(), name, type);
    }

    TemporaryFolder folder;
};

} // namespace

TEST_F(FolderEntryKindTest, believesTheFoldersOwnWord)
{
    EXPECT_EQ(kindOf("not there", DT_REG), EntryKind::file);
    EXPECT_EQ(kindOf("not there", DT_DIR), EntryKind::folder);
    EXPECT_EQ(kindOf("not there", DT_FIFO), EntryKind::other);
}

TEST_F(FolderEntryKindTest, looksWhereALinkLeads)
{
    EXPECT_EQ(kindOf("link", DT_LNK), EntryKind::file);
    EXPECT_EQ(kindOf("folder link", DT_LNK), EntryKind::other);
    EXPECT_EQ(kindOf("dangling link", DT_LNK), EntryKind::other);
}

TEST_F(FolderEntryKindTest, looksItselfWhereTheFolderDoesNotSay)
{
    EXPECT_EQ(kindOf("file", DT_UNKNOWN), EntryKind::file);
    EXPECT_EQ(kindOf("folder", DT_UNKNOWN), EntryKind::folder);
    EXPECT_EQ(kindOf("link", DT_UNKNOWN), EntryKind::file);
    EXPECT_EQ(kindOf("folder link", DT_UNKNOWN), EntryKind::other);
    EXPECT_EQ(kindOf("fifo", DT_UNKNOWN), EntryKind::other);
    EXPECT_EQ(kindOf("gone meanwhile", DT_UNKNOWN), EntryKind::other);
}

} // namespace Loadwick
