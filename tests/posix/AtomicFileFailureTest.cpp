#include "posix/AtomicFile.h"

#include <csignal>
#include <iterator>
#include <string>
#include <system_error>
#include <vector>

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "samples/TemporaryFolder.h"

namespace Loadwick {

namespace fs = std::filesystem;

namespace {

using Names = std::vector<std::string>;

std::ptrdiff_t openDescriptors()
{
    const fs::directory_iterator entries("/proc/self/fd");
    return std::distance(begin(entries), end(entries));
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

TEST(AtomicFileFailureTest, keepsTheOldFileAndNothingElseWhenTheDiskIsFull)
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

TEST(AtomicFileFailureTest, failsWithoutTheFolder)
{
    const TemporaryFolder folder;
    EXPECT_FALSE(AtomicFile::replace(folder.path() / "missing/file.json", "new"));
    AtomicFile::remove(folder.path() / "missing/file.json");
    EXPECT_TRUE(namesIn(folder.path()).empty());
}

TEST(AtomicFileFailureTest, saysWhyTheFileIsNotThere)
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

TEST(AtomicFileFailureTest, saysThatTheSystemTookNoMoreBytes)
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

TEST(AtomicFileFailureTest, saysNothingAgainstAFileThatIsThere)
{
    const TemporaryFolder folder;
    std::error_code failure = std::make_error_code(std::errc::io_error);
    EXPECT_TRUE(AtomicFile::replace(folder.path() / "file.csv", "new", failure));
    EXPECT_FALSE(failure);
}

TEST(AtomicFileFailureTest, leavesNoDescriptorOpenOnAnyWay)
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

} // namespace Loadwick
