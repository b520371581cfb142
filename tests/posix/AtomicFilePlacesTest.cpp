#include "posix/AtomicFile.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

#include "posix/FileDescriptor.h"
#include "samples/TemporaryFolder.h"

namespace Loadwick {

namespace fs = std::filesystem;

namespace {

using Names = std::vector<std::string>;

} // namespace

TEST(AtomicFilePlacesTest, writesThroughALinkToItsTarget)
{
    const TemporaryFolder folder;
    const fs::path target = folder.write("elsewhere/target.json", "old");
    fs::create_directories(folder.path() / "here");
    const fs::path link = folder.path() / "here/file.json";
    fs::create_symlink("../elsewhere/target.json", link);
    EXPECT_TRUE(AtomicFile::replace(link, "new"));
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_FALSE(fs::is_symlink(target));
    EXPECT_EQ(contentOf(target), "new");
    EXPECT_EQ(namesIn(folder.path() / "elsewhere"), Names{"target.json"});
}

TEST(AtomicFilePlacesTest, writesThroughAChainOfLinksAndAFolderLink)
{
    const TemporaryFolder folder;
    folder.write("a/b/target.json", "old");
    folder.write("a/other.json", "other");
    fs::create_directory_symlink(folder.path() / "a/b", folder.path() / "folder");
    fs::create_symlink("folder/../second.json", folder.path() / "first.json");
    fs::create_symlink("b/target.json", folder.path() / "a/second.json");
    EXPECT_TRUE(AtomicFile::replace(folder.path() / "first.json", "new"));
    EXPECT_EQ(contentOf(folder.path() / "a/b/target.json"), "new");
}

TEST(AtomicFilePlacesTest, createsWhatADanglingLinkLeadsTo)
{
    const TemporaryFolder folder;
    fs::create_directories(folder.path() / "elsewhere");
    const fs::path link = folder.path() / "file.json";
    fs::create_symlink(folder.path() / "elsewhere/target.json", link);
    EXPECT_TRUE(AtomicFile::replace(link, "new"));
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_EQ(contentOf(folder.path() / "elsewhere/target.json"), "new");

    fs::remove_all(folder.path() / "elsewhere");
    EXPECT_FALSE(AtomicFile::replace(link, "newer"));
    EXPECT_TRUE(fs::is_symlink(link));
}

TEST(AtomicFilePlacesTest, givesUpOnLinksWithoutEnd)
{
    const TemporaryFolder folder;
    fs::create_symlink("b", folder.path() / "a");
    fs::create_symlink("a", folder.path() / "b");
    EXPECT_FALSE(AtomicFile::replace(folder.path() / "a", "new"));
    AtomicFile::remove(folder.path() / "a");
    EXPECT_EQ(namesIn(folder.path()), (Names{"a", "b"}));
}

TEST(AtomicFilePlacesTest, leavesAFolderAtThePathAlone)
{
    const TemporaryFolder folder;
    folder.write("file.json/inner", "kept");
    EXPECT_FALSE(AtomicFile::replace(folder.path() / "file.json", "new"));
    AtomicFile::remove(folder.path() / "file.json");
    EXPECT_EQ(contentOf(folder.path() / "file.json/inner"), "kept");
    fs::create_directory(folder.path() / "empty.json");
    AtomicFile::remove(folder.path() / "empty.json");
    EXPECT_EQ(namesIn(folder.path()), (Names{"empty.json", "file.json"}));
}

TEST(AtomicFilePlacesTest, neverWritesOverAFifoASocketOrADevice)
{
    const TemporaryFolder folder;
    const fs::path fifo = folder.path() / "fifo";
    ASSERT_EQ(mkfifo(fifo.c_str(), 0600), 0);
    EXPECT_FALSE(AtomicFile::replace(fifo, "new"));
    EXPECT_TRUE(fs::is_fifo(fifo));

    const FileDescriptor socketEnd(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    (folder.path() / "socket").string().copy(address.sun_path, sizeof address.sun_path - 1);
    ASSERT_EQ(
        bind(socketEnd.number(), reinterpret_cast<const sockaddr *>(&address), sizeof address), 0);
    EXPECT_FALSE(AtomicFile::replace(folder.path() / "socket", "new"));
    EXPECT_TRUE(fs::is_socket(folder.path() / "socket"));

    fs::create_symlink("/dev/null", folder.path() / "device");
    EXPECT_FALSE(AtomicFile::replace(folder.path() / "device", "new"));
    AtomicFile::remove(folder.path() / "device");
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

TEST(AtomicFilePlacesTest, removesTheTargetOfALinkAndKeepsTheLink)
{
    const TemporaryFolder folder;
    const fs::path target = folder.write("elsewhere/target.json", "old");
    const fs::path link = folder.path() / "file.json";
    fs::create_symlink(target, link);
    AtomicFile::remove(link);
    EXPECT_FALSE(fs::exists(target));
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_TRUE(AtomicFile::replace(link, "new"));
    EXPECT_EQ(contentOf(target), "new");
}

TEST(AtomicFilePlacesTest, removesAFifoThatStandsAtThePath)
{
    const TemporaryFolder folder;
    ASSERT_EQ(mkfifo((folder.path() / "file.json").c_str(), 0600), 0);
    AtomicFile::remove(folder.path() / "file.json");
    EXPECT_TRUE(namesIn(folder.path()).empty());
}

} // namespace Loadwick
