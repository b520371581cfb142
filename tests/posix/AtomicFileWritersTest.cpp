#include "posix/AtomicFile.h"

#include <csignal>
#include <string>
#include <vector>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/wait.h>
#include <unistd.h>

#include "posix/FileDescriptor.h"
#include "samples/TemporaryFolder.h"

namespace Loadwick {

namespace fs = std::filesystem;

namespace {

using Names = std::vector<std::string>;

bool isWritten(const fs::path &path, std::string_view bytes)
{
    return !AtomicFile::replace(path, bytes);
}

} // namespace

TEST(AtomicFileWritersTest, removesTheFilesOfACrashedWriter)
{
    const TemporaryFolder folder;
    folder.write(".file.json.a1B2c3", "half");
    folder.write(".file.json.zzzzzz", "half");
    EXPECT_TRUE(isWritten(folder.path() / "file.json", "new"));
    EXPECT_EQ(namesIn(folder.path()), Names{"file.json"});
}

TEST(AtomicFileWritersTest, keepsTheTemporaryFileOfALiveWriter)
{
    const TemporaryFolder folder;
    const fs::path other = folder.write(".file.json.a1B2c3", "half");
    FileDescriptor writer(open(other.c_str(), O_RDWR | O_CLOEXEC));
    ASSERT_EQ(flock(writer.number(), LOCK_EX), 0);
    EXPECT_TRUE(isWritten(folder.path() / "file.json", "new"));
    EXPECT_EQ(contentOf(other), "half");
    writer.reset();
    EXPECT_TRUE(isWritten(folder.path() / "file.json", "new"));
    EXPECT_FALSE(fs::exists(other));
}

TEST(AtomicFileWritersTest, mistakesNoOtherFileForATemporaryOne)
{
    const TemporaryFolder folder;
    const Names others = {".file.json",        ".file.json.a1B2c",   ".file.json.a1B2c3d",
                          ".file.json.a1-2c3", ".other.json.a1B2c3", ".pile.json.a1B2c3",
                          "file.json.a1B2c3"};
    for (const std::string &name : others)
        folder.write(name, "kept");
    fs::create_directory(folder.path() / ".file.json.folder");
    fs::create_symlink("file.json.a1B2c3", folder.path() / ".file.json.linked");
    EXPECT_TRUE(isWritten(folder.path() / "file.json", "new"));
    EXPECT_EQ(namesIn(folder.path()).size(), others.size() + 3);
}

TEST(AtomicFileWritersTest, removesTheFileAndThoseOfCrashedWriters)
{
    const TemporaryFolder folder;
    folder.write("file.json", "old");
    folder.write(".file.json.a1B2c3", "half");
    folder.write("neighbour.json", "kept");
    AtomicFile::remove(folder.path() / "file.json");
    EXPECT_EQ(namesIn(folder.path()), Names{"neighbour.json"});
    AtomicFile::remove(folder.path() / "file.json");
}

TEST(AtomicFileWritersTest, allowsConcurrentWriters)
{
    const TemporaryFolder folder;
    const fs::path path = folder.path() / "file.json";
    const std::string ours(40'000, 'a');
    const std::string theirs(60'000, 'b');
    const pid_t child = fork();
    if (child == 0) {
        int failures = 0;
        for (int count = 0; count < 100; ++count)
            failures += isWritten(path, theirs) ? 0 : 1;
        _exit(failures == 0 ? 0 : 1);
    }
    for (int count = 0; count < 100; ++count) {
        EXPECT_TRUE(isWritten(path, ours));
        const std::string content = contentOf(path);
        EXPECT_TRUE(content == ours || content == theirs);
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(namesIn(folder.path()), Names{"file.json"});
}

TEST(AtomicFileWritersTest, isAtomicWhenTheWriterIsKilled)
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
    EXPECT_TRUE(isWritten(path, first));
    EXPECT_EQ(namesIn(folder.path()), Names{"file.json"});
}

} // namespace Loadwick
