#include "posix/AtomicFile.h"

#include <csignal>
#include <iterator>
#include <string>
#include <system_error>
#include <vector>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include "posix/FileDescriptor.h"
#include "samples/TemporaryFolder.h"

namespace Loadwick {

namespace fs = std::filesystem;

namespace {

using Names = std::vector<std::string>;

bool replaces(const fs::path &path, std::string_view bytes)
{
    return !AtomicFile::replace(path, bytes);
}

unsigned permissionsOf(const fs::path &path)
{
    return static_cast<unsigned>(fs::status(path).permissions());
}

std::ptrdiff_t openDescriptors()
{
    const fs::directory_iterator entries("/proc/self/fd");
    return std::distance(begin(entries), end(entries));
}

/// Runs `action` in a child process; returns its result, the exit status.
template<typename Action>
int exitStatusOf(Action action)
{
    const pid_t child = fork();
    if (child == 0)
        _exit(action());
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

} // namespace

TEST(AtomicFileTest, createsAFileThatOnlyItsOwnerCanRead)
{
    const TemporaryFolder folder;
    const fs::path path = folder.path() / "file.json";
    EXPECT_TRUE(replaces(path, "new"));
    EXPECT_EQ(contentOf(path), "new");
    EXPECT_EQ(permissionsOf(path), 0600U);
    EXPECT_EQ(namesIn(folder.path()), Names{"file.json"});
}

TEST(AtomicFileTest, makesTheFileReadableUnderAnyUmask)
{
    const TemporaryFolder folder;
    const mode_t before = umask(0777);
    const bool isReplaced = replaces(folder.path() / "file.json", "new");
    umask(before);
    EXPECT_TRUE(isReplaced);
    EXPECT_EQ(permissionsOf(folder.path() / "file.json"), 0600U);
}

TEST(AtomicFileTest, replacesTheWholeContent)
{
    const TemporaryFolder folder;
    const fs::path path = folder.write("file.json", "something longer");
    EXPECT_TRUE(replaces(path, "new"));
    EXPECT_EQ(contentOf(path), "new");
    EXPECT_TRUE(replaces(path, ""));
    EXPECT_EQ(contentOf(path), "");
    const std::string large(5'000'000, 'x');
    EXPECT_TRUE(replaces(path, large));
    EXPECT_EQ(contentOf(path), large);
}

TEST(AtomicFileTest, keepsTheOldContentForAnOpenReader)
{
    const TemporaryFolder folder;
    const fs::path path = folder.write("file.json", "old");
    const FileDescriptor reader(open(path.c_str(), O_RDONLY | O_CLOEXEC));
    EXPECT_TRUE(replaces(path, "new"));
    char buffer[8] = {};
    EXPECT_EQ(read(reader.number(), buffer, sizeof buffer), 3);
    EXPECT_EQ(std::string(buffer), "old");
}

TEST(AtomicFileTest, replacesAnUnreadableFile)
{
    const TemporaryFolder folder;
    const fs::path path = folder.write("file.json", "old");
    fs::permissions(path, fs::perms::none);
    EXPECT_TRUE(replaces(path, "new"));
    EXPECT_EQ(contentOf(path), "new");
}

TEST(AtomicFileTest, worksInTheCurrentFolder)
{
    const TemporaryFolder folder;
    const fs::path before = fs::current_path();
    fs::current_path(folder.path());
    folder.write(".file.json.a1B2c3", "half");
    const bool isReplaced = replaces("file.json", "new");
    fs::current_path(before);
    EXPECT_TRUE(isReplaced);
    EXPECT_EQ(namesIn(folder.path()), Names{"file.json"});
}

TEST(AtomicFileTest, writesThroughALinkToItsTarget)
{
    const TemporaryFolder folder;
    const fs::path target = folder.write("elsewhere/target.json", "old");
    fs::create_directories(folder.path() / "here");
    const fs::path link = folder.path() / "here/file.json";
    fs::create_symlink("../elsewhere/target.json", link);
    EXPECT_TRUE(replaces(link, "new"));
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_FALSE(fs::is_symlink(target));
    EXPECT_EQ(contentOf(target), "new");
    EXPECT_EQ(namesIn(folder.path() / "elsewhere"), Names{"target.json"});
}

TEST(AtomicFileTest, writesThroughAChainOfLinksAndAFolderLink)
{
    const TemporaryFolder folder;
    folder.write("a/b/target.json", "old");
    folder.write("a/other.json", "other");
    fs::create_directory_symlink(folder.path() / "a/b", folder.path() / "folder");
    fs::create_symlink("folder/../second.json", folder.path() / "first.json");
    fs::create_symlink("b/target.json", folder.path() / "a/second.json");
    EXPECT_TRUE(replaces(folder.path() / "first.json", "new"));
    EXPECT_EQ(contentOf(folder.path() / "a/b/target.json"), "new");
}

TEST(AtomicFileTest, createsTheTargetOfADanglingLink)
{
    const TemporaryFolder folder;
    fs::create_directories(folder.path() / "elsewhere");
    const fs::path link = folder.path() / "file.json";
    fs::create_symlink(folder.path() / "elsewhere/target.json", link);
    EXPECT_TRUE(replaces(link, "new"));
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_EQ(contentOf(folder.path() / "elsewhere/target.json"), "new");

    fs::remove_all(folder.path() / "elsewhere");
    EXPECT_FALSE(replaces(link, "newer"));
    EXPECT_TRUE(fs::is_symlink(link));
}

TEST(AtomicFileTest, givesUpOnAnEndlessChainOfLinks)
{
    const TemporaryFolder folder;
    fs::create_symlink("b", folder.path() / "a");
    fs::create_symlink("a", folder.path() / "b");
    EXPECT_FALSE(replaces(folder.path() / "a", "new"));
    AtomicFile::remove(folder.path() / "a");
    EXPECT_EQ(namesIn(folder.path()), (Names{"a", "b"}));
}

TEST(AtomicFileTest, leavesAFolderAtThePathAlone)
{
    const TemporaryFolder folder;
    folder.write("file.json/inner", "kept");
    EXPECT_FALSE(replaces(folder.path() / "file.json", "new"));
    AtomicFile::remove(folder.path() / "file.json");
    EXPECT_EQ(contentOf(folder.path() / "file.json/inner"), "kept");
    fs::create_directory(folder.path() / "empty.json");
    AtomicFile::remove(folder.path() / "empty.json");
    EXPECT_EQ(namesIn(folder.path()), (Names{"empty.json", "file.json"}));
}

TEST(AtomicFileTest, neverReplacesAFifoSocketOrDevice)
{
    const TemporaryFolder folder;
    const fs::path fifo = folder.path() / "fifo";
    ASSERT_EQ(mkfifo(fifo.c_str(), 0600), 0);
    EXPECT_FALSE(replaces(fifo, "new"));
    EXPECT_TRUE(fs::is_fifo(fifo));

    const FileDescriptor socketEnd(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    (folder.path() / "socket").string().copy(address.sun_path, sizeof address.sun_path - 1);
    ASSERT_EQ(
        bind(socketEnd.number(), reinterpret_cast<const sockaddr *>(&address), sizeof address), 0);
    EXPECT_FALSE(replaces(folder.path() / "socket", "new"));
    EXPECT_TRUE(fs::is_socket(folder.path() / "socket"));

    fs::create_symlink("/dev/null", folder.path() / "device");
    EXPECT_FALSE(replaces(folder.path() / "device", "new"));
    AtomicFile::remove(folder.path() / "device");
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

TEST(AtomicFileTest, removesTheTargetOfALinkAndKeepsTheLink)
{
    const TemporaryFolder folder;
    const fs::path target = folder.write("elsewhere/target.json", "old");
    const fs::path link = folder.path() / "file.json";
    fs::create_symlink(target, link);
    AtomicFile::remove(link);
    EXPECT_FALSE(fs::exists(target));
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_TRUE(replaces(link, "new"));
    EXPECT_EQ(contentOf(target), "new");
}

TEST(AtomicFileTest, removesAFifoAtThePath)
{
    const TemporaryFolder folder;
    ASSERT_EQ(mkfifo((folder.path() / "file.json").c_str(), 0600), 0);
    AtomicFile::remove(folder.path() / "file.json");
    EXPECT_TRUE(namesIn(folder.path()).empty());
}

TEST(AtomicFileTest, keepsOnlyTheOldFileWhenTheDiskIsFull)
{
    const TemporaryFolder folder;
    const fs::path path = folder.write("file.json", "old");
    const std::string large(100'000, 'x');
    const int status = exitStatusOf([&] {
        // A limit on the size of files simulates a full disk: a short write, then an error.
        signal(SIGXFSZ, SIG_IGN);
        const rlimit limit = {10'000, RLIM_INFINITY};
        setrlimit(RLIMIT_FSIZE, &limit);
        return AtomicFile::replace(path, large) == std::errc::file_too_large ? 0 : 1;
    });
    EXPECT_EQ(status, 0);
    EXPECT_EQ(contentOf(path), "old");
    EXPECT_EQ(namesIn(folder.path()), Names{"file.json"});
}

TEST(AtomicFileTest, removingWithoutTheFolderIsANoOp)
{
    const TemporaryFolder folder;
    AtomicFile::remove(folder.path() / "missing/file.json");
    EXPECT_TRUE(namesIn(folder.path()).empty());
}

TEST(AtomicFileTest, reportsWhyReplacingFailed)
{
    const TemporaryFolder folder;
    folder.write("folder.csv/inner", "kept");
    fs::create_symlink("loop.csv", folder.path() / "loop.csv");
    ASSERT_EQ(mkfifo((folder.path() / "fifo.csv").c_str(), 0600), 0);
    const auto failureAt = [&folder](const fs::path &name) {
        return AtomicFile::replace(folder.path() / name, "new");
    };
    EXPECT_EQ(failureAt("missing/file.csv"), std::errc::no_such_file_or_directory);
    EXPECT_EQ(failureAt("folder.csv/inner/file.csv"), std::errc::not_a_directory);
    EXPECT_EQ(failureAt("folder.csv"), std::errc::is_a_directory);
    EXPECT_EQ(failureAt("loop.csv"), std::errc::too_many_symbolic_link_levels);
    EXPECT_EQ(failureAt("fifo.csv"), std::errc::not_supported);
    EXPECT_EQ(failureAt(std::string(300, 'n')), std::errc::filename_too_long);
}

TEST(AtomicFileTest, leaksNoDescriptor)
{
    const TemporaryFolder folder;
    folder.write("directory.json/inner", "kept");
    folder.write(".file.json.a1B2c3", "half");
    const auto before = openDescriptors();
    EXPECT_TRUE(replaces(folder.path() / "file.json", "new"));
    EXPECT_FALSE(replaces(folder.path() / "directory.json", "new"));
    EXPECT_FALSE(replaces(folder.path() / "missing/file.json", "new"));
    AtomicFile::remove(folder.path() / "file.json");
    AtomicFile::remove(folder.path() / "file.json");
    EXPECT_EQ(openDescriptors(), before);
}

} // namespace Loadwick
