#include "support/PlainPermissions.h"

#include <cerrno>
#include <thread>

#include <fcntl.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "samples/TemporaryFolder.h"

namespace Loadwick {

namespace {

/// The `errno` of opening a file for reading, 0 when it opens.
int openError(const std::filesystem::path &path)
{
    const int descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0)
        return errno;
    ::close(descriptor);
    return 0;
}

} // namespace

TEST(PlainPermissionsTest, refusesAFileWithoutPermissions)
{
    const TemporaryFolder folder;
    const std::filesystem::path path = folder.write("secret", "text");
    std::filesystem::permissions(path, std::filesystem::perms::none);
    const int before = openError(path);
    {
        const PlainPermissions plain;
        EXPECT_EQ(openError(path), EACCES);
        int elsewhere = 0;
        std::thread([&] { elsewhere = openError(path); }).join();
        EXPECT_EQ(elsewhere, EACCES);
    }
    EXPECT_EQ(openError(path), before);
}

TEST(PlainPermissionsTest, refusesAFolderWithoutSearchPermission)
{
    const TemporaryFolder folder;
    const std::filesystem::path path = folder.write("shut/file", "text");
    std::filesystem::permissions(folder.path() / "shut", std::filesystem::perms::none);
    const PlainPermissions plain;
    EXPECT_EQ(openError(path), EACCES);
}

TEST(PlainPermissionsTest, opensPermittedFiles)
{
    const TemporaryFolder folder;
    const std::filesystem::path path = folder.write("open", "text");
    const PlainPermissions plain;
    EXPECT_EQ(openError(path), 0);
}

} // namespace Loadwick
