#include "probe/FolderAccess.h"

#include <sys/stat.h>

#include <gtest/gtest.h>

#include "samples/TemporaryFolder.h"
#include "support/PlainPermissions.h"

namespace Loadwick {

namespace {

void expectUnreadable(const std::filesystem::path &path, const std::string &shownPath)
{
    const auto expected = ProbeError::repositoryUnreadable(shownPath);
    EXPECT_EQ(FolderAccess::checkSynchronously(path), expected);
    EXPECT_EQ(FolderAccess::preflight(path), expected);
}

} // namespace

TEST(FolderAccessTest, acceptsAFolderThatCanBeListed)
{
    const TemporaryFolder folder;
    EXPECT_EQ(FolderAccess::checkSynchronously(folder.path()), std::nullopt);
    folder.write("inside.txt", "x");
    EXPECT_EQ(FolderAccess::checkSynchronously(folder.path()), std::nullopt);
    EXPECT_EQ(FolderAccess::preflight(folder.path()), std::nullopt);
}

TEST(FolderAccessTest, rejectsAMissingFolder)
{
    const TemporaryFolder folder;
    const std::filesystem::path gone = folder.path() / "gone";
    expectUnreadable(gone, gone.string());
}

TEST(FolderAccessTest, rejectsAnythingButAFolder)
{
    const TemporaryFolder folder;
    const std::filesystem::path file = folder.write("file", "x");
    expectUnreadable(file, file.string());
    const std::filesystem::path fifo = folder.path() / "fifo";
    ASSERT_EQ(mkfifo(fifo.c_str(), 0600), 0);
    expectUnreadable(fifo, fifo.string());
    expectUnreadable("", "");
}

TEST(FolderAccessTest, rejectsAnUnlistableFolder)
{
    const TemporaryFolder folder;
    const std::filesystem::path locked = folder.path() / "locked";
    std::filesystem::create_directory(locked);
    std::filesystem::permissions(locked, std::filesystem::perms::owner_exec);
    const PlainPermissions permissions;
    expectUnreadable(locked, locked.string());
}

TEST(FolderAccessTest, followsALinkToAFolder)
{
    const TemporaryFolder folder;
    std::filesystem::create_directory_symlink(folder.path(), folder.path() / "link");
    EXPECT_EQ(FolderAccess::checkSynchronously(folder.path() / "link"), std::nullopt);
}

TEST(FolderAccessTest, acceptsIllFormedNamesAndShowsThemRepaired)
{
    const TemporaryFolder folder;
    const std::filesystem::path odd = folder.path() / "odd-\xFF\nname";
    expectUnreadable(odd, folder.path().string() + "/odd-\xEF\xBF\xBD\nname");
    std::filesystem::create_directory(odd);
    EXPECT_EQ(FolderAccess::checkSynchronously(odd), std::nullopt);
}

TEST(FolderAccessTest, rejectsAPathThatTheSystemWouldTruncate)
{
    using namespace std::string_literals;
    expectUnreadable("/\0etc"s, "/\0etc"s);
}

TEST(FolderAccessTest, treatsADiskThatHangsAsUnreadable)
{
    EXPECT_EQ(FolderAccess::preflight("/", std::chrono::duration<double>(-1)),
              ProbeError::repositoryUnreadable("/"));
}

} // namespace Loadwick
