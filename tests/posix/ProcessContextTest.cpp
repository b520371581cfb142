#include "posix/ProcessContext.h"

#include <cerrno>
#include <cstring>

#include <gtest/gtest.h>
#include <pwd.h>
#include <unistd.h>

#include "samples/TemporaryFolder.h"
#include "support/EnvironmentSwap.h"

namespace Loadwick {

namespace {

int failures = 0; // lookups that have yet to fail

int recorded(passwd *entry, char *buffer, const char *home, passwd **found)
{
    entry->pw_dir = home == nullptr ? nullptr : std::strcpy(buffer, home);
    *found = entry;
    return 0;
}

int nobody(uid_t, passwd *, char *, std::size_t, passwd **found)
{
    *found = nullptr;
    return 0;
}

int withoutHome(uid_t, passwd *entry, char *buffer, std::size_t, passwd **found)
{
    return recorded(entry, buffer, nullptr, found);
}

int withEmptyHome(uid_t, passwd *entry, char *buffer, std::size_t, passwd **found)
{
    return recorded(entry, buffer, "", found);
}

int interrupted(uid_t, passwd *entry, char *buffer, std::size_t, passwd **found)
{
    *found = nullptr;
    return failures-- > 0 ? EINTR : recorded(entry, buffer, "/home/patient", found);
}

int needingRoom(uid_t, passwd *entry, char *buffer, std::size_t size, passwd **found)
{
    *found = nullptr;
    return size < 100'000 ? ERANGE : recorded(entry, buffer, "/home/long", found);
}

int broken(uid_t, passwd *, char *, std::size_t, passwd **found)
{
    *found = nullptr;
    return EIO;
}

} // namespace

TEST(ProcessContextTest, readsTheEnvironmentAsBytes)
{
    const EnvironmentSwap swap({"A=1", "EMPTY=", "WITH=a=b", "BYTES=\xFF"});
    EXPECT_EQ(currentEnvironment(),
              (Environment{{"A", "1"}, {"EMPTY", ""}, {"WITH", "a=b"}, {"BYTES", "\xFF"}}));
}

TEST(ProcessContextTest, firstOfDuplicateNamesWins)
{
    const EnvironmentSwap swap({"A=1", "A=2"});
    EXPECT_EQ(currentEnvironment(), (Environment{{"A", "1"}}));
}

TEST(ProcessContextTest, skipsEntriesWithoutAName)
{
    const EnvironmentSwap swap({"=x", "plain", "A=1"});
    EXPECT_EQ(currentEnvironment(), (Environment{{"A", "1"}}));
}

TEST(ProcessContextTest, hasNoVariablesWithoutAnEnvironment)
{
    char **const before = environ;
    environ = nullptr;
    const Environment environment = currentEnvironment();
    environ = before;
    EXPECT_TRUE(environment.empty());
}

TEST(ProcessContextTest, knowsTheCurrentFolder)
{
    EXPECT_EQ(currentFolder(), std::filesystem::current_path());
}

TEST(ProcessContextTest, fallsBackToTheRootWhenTheCurrentFolderIsGone)
{
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::path gone;
    {
        const TemporaryFolder folder;
        std::filesystem::current_path(folder.path());
    }
    gone = currentFolder();
    std::filesystem::current_path(before);
    EXPECT_EQ(gone, "/");
}

TEST(ProcessContextTest, prefersHomeFromTheEnvironment)
{
    EXPECT_EQ(homeFolder({{"HOME", "/some/home"}}), "/some/home");
    EXPECT_EQ(homeFolder({{"HOME", "/bytes\xFF"}}), "/bytes\xFF");
}

TEST(ProcessContextTest, asksThePasswordDatabaseWhenHomeIsUnsetOrEmpty)
{
    const passwd *const entry = getpwuid(getuid());
    const std::string recorded = entry != nullptr && *entry->pw_dir != '\0' ? entry->pw_dir : "/";
    EXPECT_EQ(homeFolder({}), recorded);
    EXPECT_EQ(homeFolder({{"HOME", ""}}), recorded);
}

TEST(ProcessContextTest, fallsBackToTheRootWithoutARecordedHome)
{
    for (const auto lookup : {nobody, withoutHome, withEmptyHome, broken})
        EXPECT_EQ(recordedHome(7, lookup), "/");
}

TEST(ProcessContextTest, retriesAnInterruptedLookup)
{
    failures = 3;
    EXPECT_EQ(recordedHome(7, interrupted), "/home/patient");
}

TEST(ProcessContextTest, growsItsBufferForALongEntry)
{
    EXPECT_EQ(recordedHome(7, needingRoom), "/home/long");
}

} // namespace Loadwick
