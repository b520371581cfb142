#include "history/AtomicFile.h"

#include <algorithm>
#include <csignal>
#include <string>
#include <vector>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include "probe/FileDescriptor.h"
#include "support/TemporaryFolder.h"

namespace Loadwick {

namespace fs = std::filesystem;

namespace {

std::vector<std::string> namesIn(const fs::path &folder)
{
    std::vector<std::string> names;
    for (const fs::directory_entry &entry : fs::directory_iterator(folder))
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

using Names = std::vector<std::string>;

std::ptrdiff_t openDescriptors()
{
    const fs::directory_iterator entries("/proc/self/fd");
    return std::distance(begin(entries), end(entries));
}

unsigned permissionsOf(const fs::path &path)
{
    return static_cast<unsigned>(fs::status(path).permissions());
}

/// Runs `action` in a child of its own; its return value as exit status.
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

TEST(AtomicFileTest, createsAFileThatOnlyTheUserCanRead)
{
    const TemporaryFolder folder;
    const fs::path path = folder.path() / "file.json";
    EXPECT_TRUE(AtomicFile::replace(path, "new"));
    EXPECT_EQ(contentOf(path), "new");
    EXPECT_EQ(permissionsOf(path), 0600U);
    EXPECT_EQ(namesIn(folder.path()), Names{"file.json"});
}

TEST(AtomicFileTest, makesTheFileReadableWhateverTheUmask)
{
    const TemporaryFolder folder;
    const mode_t before = umask(0777);
    const bool isReplaced = AtomicFile::replace(folder.path() / "file.json", "new");
    umask(before);
    EXPECT_TRUE(isReplaced);
    EXPECT_EQ(permissionsOf(folder.path() / "file.json"), 0600U);
}

TEST(AtomicFileTest, replacesTheWholeContent)
{
    const TemporaryFolder folder;
    const fs::path path = folder.write("file.json", "something longer");
    EXPECT_TRUE(AtomicFile::replace(path, "new"));
    EXPECT_EQ(contentOf(path), "new");
    EXPECT_TRUE(AtomicFile::replace(path, ""));
    EXPECT_EQ(contentOf(path), "");
    const std::string large(5'000'000, 'x');
    EXPECT_TRUE(AtomicFile::replace(path, large));
    EXPECT_EQ(contentOf(path), large);
}

TEST(AtomicFileTest, leavesTheOldFileToAReaderThatHasItOpen)
{
    const TemporaryFolder folder;
    const fs::path path = folder.write("file.json", "old");
    const FileDescriptor reader(open(path.c_str(), O_RDONLY | O_CLOEXEC));
    EXPECT_TRUE(AtomicFile::replace(path, "new"));
    char buffer[8] = {};
    EXPECT_EQ(read(reader.number(), buffer, sizeof buffer), 3);
    EXPECT_EQ(std::string(buffer), "old");
}

TEST(AtomicFileTest, replacesAFileThatNobodyMayRead)
{
    const TemporaryFolder folder;
    const fs::path path = folder.write("file.json", "old");
    fs::permissions(path, fs::perms::none);
    EXPECT_TRUE(AtomicFile::replace(path, "new"));
    EXPECT_EQ(contentOf(path), "new");
}

TEST(AtomicFileTest, writesThroughALinkToItsTarget)
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

TEST(AtomicFileTest, writesThroughAChainOfLinksAndAFolderLink)
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

TEST(AtomicFileTest, createsWhatADanglingLinkLeadsTo)
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

TEST(AtomicFileTest, givesUpOnLinksWithoutEnd)
{
    const TemporaryFolder folder;
    fs::create_symlink("b", folder.path() / "a");
    fs::create_symlink("a", folder.path() / "b");
    EXPECT_FALSE(AtomicFile::replace(folder.path() / "a", "new"));
    AtomicFile::remove(folder.path() / "a");
    EXPECT_EQ(namesIn(folder.path()), (Names{"a", "b"}));
}

TEST(AtomicFileTest, leavesAFolderAtThePathAlone)
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

TEST(AtomicFileTest, neverWritesOverAFifoASocketOrADevice)
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

TEST(AtomicFileTest, removesWhatACrashedWriterLeft)
{
    const TemporaryFolder folder;
    folder.write(".file.json.a1B2c3", "half");
    folder.write(".file.json.zzzzzz", "half");
    EXPECT_TRUE(AtomicFile::replace(folder.path() / "file.json", "new"));
    EXPECT_EQ(namesIn(folder.path()), Names{"file.json"});
}

TEST(AtomicFileTest, keepsTheTemporaryFileOfALivingWriter)
{
    const TemporaryFolder folder;
    const fs::path other = folder.write(".file.json.a1B2c3", "half");
    FileDescriptor writer(open(other.c_str(), O_RDWR | O_CLOEXEC));
    ASSERT_EQ(flock(writer.number(), LOCK_EX), 0);
    EXPECT_TRUE(AtomicFile::replace(folder.path() / "file.json", "new"));
    EXPECT_EQ(contentOf(other), "half");
    writer.reset();
    EXPECT_TRUE(AtomicFile::replace(folder.path() / "file.json", "new"));
    EXPECT_FALSE(fs::exists(other));
}

TEST(AtomicFileTest, takesNothingElseForATemporaryFile)
{
    const TemporaryFolder folder;
    const Names others = {".file.json",        ".file.json.a1B2c",   ".file.json.a1B2c3d",
                          ".file.json.a1-2c3", ".other.json.a1B2c3", ".pile.json.a1B2c3",
                          "file.json.a1B2c3"};
    for (const std::string &name : others)
        folder.write(name, "kept");
    fs::create_directory(folder.path() / ".file.json.folder");
    fs::create_symlink("file.json.a1B2c3", folder.path() / ".file.json.linked");
    EXPECT_TRUE(AtomicFile::replace(folder.path() / "file.json", "new"));
    EXPECT_EQ(namesIn(folder.path()).size(), others.size() + 3);
}

TEST(AtomicFileTest, keepsTheOldFileAndNothingElseWhenTheDiskIsFull)
{
    const TemporaryFolder folder;
    const fs::path path = folder.write("file.json", "old");
    const std::string large(100'000, 'x');
    const int status = exitStatusOf([&] {
        // A limit on the size of files stands in for a full disk: a short write, then an error.
        signal(SIGXFSZ, SIG_IGN);
        const rlimit limit = {10'000, RLIM_INFINITY};
        setrlimit(RLIMIT_FSIZE, &limit);
        return AtomicFile::replace(path, large) ? 1 : 0;
    });
    EXPECT_EQ(status, 0);
    EXPECT_EQ(contentOf(path), "old");
    EXPECT_EQ(namesIn(folder.path()), Names{"file.json"});
}

TEST(AtomicFileTest, failsWithoutTheFolder)
{
    const TemporaryFolder folder;
    EXPECT_FALSE(AtomicFile::replace(folder.path() / "missing/file.json", "new"));
    AtomicFile::remove(folder.path() / "missing/file.json");
    EXPECT_TRUE(namesIn(folder.path()).empty());
}

TEST(AtomicFileTest, saysWhyTheFileIsNotThere)
{
    const TemporaryFolder folder;
    folder.write("folder.csv/inner", "kept");
    fs::create_symlink("loop.csv", folder.path() / "loop.csv");
    ASSERT_EQ(mkfifo((folder.path() / "fifo.csv").c_str(), 0600), 0);
    const auto failureAt = [&folder](const fs::path &name) {
        std::error_code failure;
        EXPECT_FALSE(AtomicFile::replace(folder.path() / name, "new", failure)) << name;
        return failure;
    };
    EXPECT_EQ(failureAt("missing/file.csv"), std::errc::no_such_file_or_directory);
    EXPECT_EQ(failureAt("folder.csv/inner/file.csv"), std::errc::not_a_directory);
    EXPECT_EQ(failureAt("folder.csv"), std::errc::is_a_directory);
    EXPECT_EQ(failureAt("loop.csv"), std::errc::too_many_symbolic_link_levels);
    EXPECT_EQ(failureAt("fifo.csv"), std::errc::not_supported);
    EXPECT_EQ(failureAt(std::string(300, 'n')), std::errc::filename_too_long);
}

TEST(AtomicFileTest, saysThatTheSystemTookNoMoreBytes)
{
    const TemporaryFolder folder;
    const fs::path path = folder.path() / "file.csv";
    EXPECT_EQ(exitStatusOf([&path] {
                  const rlimit small = {.rlim_cur = 4'096, .rlim_max = RLIM_INFINITY};
                  setrlimit(RLIMIT_FSIZE, &small);
                  static_cast<void>(signal(SIGXFSZ, SIG_IGN));
                  std::error_code failure;
                  const bool isWritten =
                      AtomicFile::replace(path, std::string(10'000, 'x'), failure);
                  return !isWritten && failure == std::errc::file_too_large ? 0 : 1;
              }),
              0);
    EXPECT_TRUE(namesIn(folder.path()).empty());
}

TEST(AtomicFileTest, saysNothingAgainstAFileThatIsThere)
{
    const TemporaryFolder folder;
    std::error_code failure = std::make_error_code(std::errc::io_error);
    EXPECT_TRUE(AtomicFile::replace(folder.path() / "file.csv", "new", failure));
    EXPECT_FALSE(failure);
}

TEST(AtomicFileTest, worksInTheCurrentFolder)
{
    const TemporaryFolder folder;
    const fs::path before = fs::current_path();
    fs::current_path(folder.path());
    folder.write(".file.json.a1B2c3", "half");
    const bool isReplaced = AtomicFile::replace("file.json", "new");
    fs::current_path(before);
    EXPECT_TRUE(isReplaced);
    EXPECT_EQ(namesIn(folder.path()), Names{"file.json"});
}

TEST(AtomicFileTest, removesTheFileAndWhatCrashedWritersLeft)
{
    const TemporaryFolder folder;
    folder.write("file.json", "old");
    folder.write(".file.json.a1B2c3", "half");
    folder.write("neighbour.json", "kept");
    AtomicFile::remove(folder.path() / "file.json");
    EXPECT_EQ(namesIn(folder.path()), Names{"neighbour.json"});
    AtomicFile::remove(folder.path() / "file.json");
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
    EXPECT_TRUE(AtomicFile::replace(link, "new"));
    EXPECT_EQ(contentOf(target), "new");
}

TEST(AtomicFileTest, removesAFifoThatStandsAtThePath)
{
    const TemporaryFolder folder;
    ASSERT_EQ(mkfifo((folder.path() / "file.json").c_str(), 0600), 0);
    AtomicFile::remove(folder.path() / "file.json");
    EXPECT_TRUE(namesIn(folder.path()).empty());
}

TEST(AtomicFileTest, leavesNoDescriptorOpenOnAnyWay)
{
    const TemporaryFolder folder;
    folder.write("directory.json/inner", "kept");
    folder.write(".file.json.a1B2c3", "half");
    const auto before = openDescriptors();
    EXPECT_TRUE(AtomicFile::replace(folder.path() / "file.json", "new"));
    EXPECT_FALSE(AtomicFile::replace(folder.path() / "directory.json", "new"));
    EXPECT_FALSE(AtomicFile::replace(folder.path() / "missing/file.json", "new"));
    AtomicFile::remove(folder.path() / "file.json");
    AtomicFile::remove(folder.path() / "file.json");
    EXPECT_EQ(openDescriptors(), before);
}

TEST(AtomicFileTest, letsTwoWritersWorkSideBySide)
{
    const TemporaryFolder folder;
    const fs::path path = folder.path() / "file.json";
    const std::string ours(40'000, 'a');
    const std::string theirs(60'000, 'b');
    const pid_t child = fork();
    if (child == 0) {
        int failures = 0;
        for (int count = 0; count < 100; ++count)
            failures += AtomicFile::replace(path, theirs) ? 0 : 1;
        _exit(failures == 0 ? 0 : 1);
    }
    for (int count = 0; count < 100; ++count) {
        EXPECT_TRUE(AtomicFile::replace(path, ours));
        const std::string content = contentOf(path);
        EXPECT_TRUE(content == ours || content == theirs);
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(namesIn(folder.path()), Names{"file.json"});
}

TEST(AtomicFileTest, showsTheOldContentOrTheNewWhenTheWriterIsKilled)
{
    const TemporaryFolder folder;
    const std::string first(300'000, 'a');
    const std::string second(200'000, 'b');
    const fs::path path = folder.write("file.json", first);
    for (int round = 0; round < 40; ++round) {
        const pid_t child = fork();
        if (child == 0)
            for (bool isFirst = false;; isFirst = !isFirst)
                static_cast<void>(AtomicFile::replace(path, isFirst ? first : second));
        usleep(static_cast<useconds_t>(500 + round * 137));
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        const std::string content = contentOf(path);
        ASSERT_TRUE(content == first || content == second) << "round " << round;
    }
    EXPECT_TRUE(AtomicFile::replace(path, first));
    EXPECT_EQ(namesIn(folder.path()), Names{"file.json"});
}

} // namespace Loadwick
