#include "posix/RegularFile.h"

#include <array>
#include <cerrno>
#include <set>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include "samples/TemporaryFolder.h"
#include "support/PlainPermissions.h"

namespace Loadwick {

namespace fs = std::filesystem;

namespace {

std::ptrdiff_t descriptorCount()
{
    return std::distance(fs::directory_iterator("/proc/self/fd"), fs::directory_iterator());
}

int failureNumber(const fs::path &path)
{
    RegularFile::Failure failure{.errorNumber = -1};
    EXPECT_FALSE(RegularFile::open(path, &failure));
    return failure.errorNumber;
}

} // namespace

TEST(RegularFileTest, readsAWholeFile)
{
    const TemporaryFolder folder;
    const std::string content = "first\n" + std::string(200'000, 'x') + "\nlast";
    auto file = RegularFile::open(folder.write("a", content));
    ASSERT_TRUE(file);
    EXPECT_EQ(file->size(), static_cast<std::int64_t>(content.size()));
    EXPECT_EQ(file->readUpTo(1 << 20), content);
    EXPECT_EQ(file->readUpTo(1 << 20), "");
}

TEST(RegularFileTest, examinesASeenFileThroughItsDescriptorOnly)
{
    const TemporaryFolder folder;
    const fs::path path = folder.write("file", "content");
    auto file = RegularFile::openSeen(path);
    ASSERT_TRUE(file);
    EXPECT_EQ(file->size(), 7);
    EXPECT_EQ(file->readUpTo(100), "content");
    RegularFile::Failure failure{.errorNumber = -1};
    EXPECT_FALSE(RegularFile::openSeen(folder.path(), &failure));
    EXPECT_EQ(failure.errorNumber, 0);
    EXPECT_FALSE(RegularFile::openSeen(folder.path() / "missing", &failure));
    EXPECT_EQ(failure.errorNumber, ENOENT);
}

TEST(RegularFileTest, readsNoFurtherThanTheLimit)
{
    const TemporaryFolder folder;
    auto file = RegularFile::open(folder.write("a", "abcdef"));
    ASSERT_TRUE(file);
    EXPECT_EQ(file->readUpTo(0), "");
    EXPECT_EQ(file->readUpTo(4), "abcd");
    EXPECT_EQ(file->readUpTo(4), "ef");
}

TEST(RegularFileTest, readsFromAnOffset)
{
    const TemporaryFolder folder;
    auto file = RegularFile::open(folder.write("a", "abcdef"));
    ASSERT_TRUE(file);
    EXPECT_TRUE(file->skipTo(4));
    EXPECT_EQ(file->readUpTo(9), "ef");
    EXPECT_TRUE(file->skipTo(0));
    EXPECT_EQ(file->readUpTo(2), "ab");
    EXPECT_FALSE(file->skipTo(-1));
    EXPECT_EQ(file->readUpTo(2), "cd");
    EXPECT_TRUE(file->skipTo(99));
    EXPECT_EQ(file->readUpTo(9), "");
}

TEST(RegularFileTest, readsIntoABuffer)
{
    const TemporaryFolder folder;
    auto file = RegularFile::open(folder.write("a", "abc"));
    ASSERT_TRUE(file);
    std::array<char, 2> buffer{};
    EXPECT_EQ(file->read(buffer), 2U);
    EXPECT_EQ(buffer[1], 'b');
    EXPECT_EQ(file->read(buffer), 1U);
    EXPECT_EQ(file->read(buffer), 0U);
}

TEST(RegularFileTest, readsWhatWasWrittenAfterItWasOpened)
{
    const TemporaryFolder folder;
    auto file = RegularFile::open(folder.write("a", "short"));
    ASSERT_TRUE(file);
    (void)folder.write("a", "much longer than before");
    EXPECT_EQ(file->readUpTo(100), "much longer than before");
    EXPECT_EQ(file->size(), 5);
}

TEST(RegularFileTest, readsAFileThatClaimsToBeEmpty)
{
    auto file = RegularFile::open("/proc/self/status");
    ASSERT_TRUE(file);
    EXPECT_EQ(file->size(), 0);
    EXPECT_GT(file->readUpTo(1000)->size(), 100U);
}

TEST(RegularFileTest, stopsInAFileThatNeverEnds)
{
    auto file = RegularFile::open("/proc/self/pagemap");
    ASSERT_TRUE(file);
    const auto content = file->readUpTo(300'000);
    EXPECT_TRUE(!content || content->size() <= 300'000);
}

TEST(RegularFileTest, followsLinksAndDistinguishesFiles)
{
    const TemporaryFolder folder;
    (void)folder.write("a", "abc");
    fs::create_symlink("a", folder.path() / "link");
    auto link = RegularFile::open(folder.path() / "link");
    ASSERT_TRUE(link);
    EXPECT_EQ(link->readUpTo(9), "abc");
    EXPECT_EQ(link->identity(), RegularFile::open(folder.path() / "a")->identity());
    EXPECT_NE(link->identity(), RegularFile::open(folder.write("b", "abc"))->identity());
}

TEST(RegularFileTest, reportsWhyOpeningFailed)
{
    const TemporaryFolder folder;
    EXPECT_EQ(failureNumber(folder.path() / "missing"), ENOENT);
    EXPECT_EQ(failureNumber(folder.write("a", "") / "below"), ENOTDIR);
    fs::create_symlink("self", folder.path() / "self");
    EXPECT_EQ(failureNumber(folder.path() / "self"), ELOOP);
    EXPECT_EQ(failureNumber(""), ENOENT);
}

TEST(RegularFileTest, treatsAPathWithANulAsMissing)
{
    const TemporaryFolder folder;
    const std::string path = folder.write("a", "abc").string();
    EXPECT_EQ(failureNumber(path + std::string(1, '\0') + "b"), ENOENT);
}

TEST(RegularFileTest, refusesFoldersDevicesFifosAndSocketsUnopened)
{
    const TemporaryFolder folder;
    EXPECT_EQ(failureNumber(folder.path()), 0);
    EXPECT_EQ(failureNumber("/dev/zero"), 0);
    const fs::path fifo = folder.path() / "fifo";
    ASSERT_EQ(mkfifo(fifo.c_str(), 0600), 0);
    EXPECT_EQ(failureNumber(fifo), 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    (folder.path() / "socket").string().copy(address.sun_path, sizeof address.sun_path - 1);
    const FileDescriptor end(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    ASSERT_EQ(bind(end.number(), reinterpret_cast<const sockaddr *>(&address), sizeof address), 0);
    EXPECT_EQ(failureNumber(folder.path() / "socket"), 0);
}

TEST(RegularFileTest, reportsMissingPermission)
{
    const TemporaryFolder folder;
    const fs::path path = folder.write("a", "abc");
    fs::permissions(path, fs::perms::none);
    const PlainPermissions plain;
    RegularFile::Failure failure;
    EXPECT_FALSE(RegularFile::open(path, &failure));
    EXPECT_TRUE(failure.isDenied());
}

TEST(RegularFileTest, recognisesTheErrorsOfADenial)
{
    EXPECT_TRUE(RegularFile::Failure{EACCES}.isDenied());
    EXPECT_TRUE(RegularFile::Failure{EPERM}.isDenied());
    EXPECT_FALSE(RegularFile::Failure{ENOENT}.isDenied());
    EXPECT_FALSE(RegularFile::Failure{0}.isDenied());
}

TEST(RegularFileTest, leaksNoDescriptor)
{
    const TemporaryFolder folder;
    const fs::path path = folder.write("a", "abc");
    const std::ptrdiff_t before = descriptorCount();
    {
        auto first = RegularFile::open(path);
        auto second = RegularFile::open(path);
        ASSERT_TRUE(first && second);
        *first = std::move(*second);
        RegularFile third = std::move(*first);
        EXPECT_EQ(third.readUpTo(9), "abc");
        (void)RegularFile::open(folder.path());
        (void)RegularFile::open(folder.path() / "missing");
    }
    EXPECT_EQ(descriptorCount(), before);
}

TEST(RegularFileTest, hidesItsDescriptorFromChildren)
{
    const TemporaryFolder folder;
    const int next = dup(0);
    close(next);
    const auto file = RegularFile::open(folder.write("a", "abc"));
    EXPECT_NE(fcntl(next, F_GETFD) & FD_CLOEXEC, 0);
}

TEST(RegularFileTest, reportsWhyAnOpenFileCannotBeRead)
{
    auto file = RegularFile::open("/proc/self/mem"); // nothing is mapped at address 0
    ASSERT_TRUE(file);
    std::array<char, 16> buffer{};
    RegularFile::Failure failure;
    EXPECT_EQ(file->read(buffer, &failure), std::nullopt);
    EXPECT_EQ(failure.errorNumber, EIO);
    EXPECT_EQ(file->readUpTo(10, &failure), std::nullopt);
    EXPECT_EQ(file->read(buffer), std::nullopt);
}

} // namespace Loadwick
