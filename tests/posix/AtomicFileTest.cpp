#include "posix/AtomicFile.h"

#include <string>
#include <vector>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "posix/FileDescriptor.h"
#include "samples/TemporaryFolder.h"

namespace Loadwick {

namespace fs = std::filesystem;

namespace {

using Names = std::vector<std::string>;

unsigned permissionsOf(const fs::path &path)
{
    return static_cast<unsigned>(fs::status(path).permissions());
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

} // namespace Loadwick
