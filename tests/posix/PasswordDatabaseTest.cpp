#include "posix/PasswordDatabase.h"

#include <cerrno>
#include <cstring>

#include <gtest/gtest.h>
#include <unistd.h>

namespace Loadwick {

namespace {

using PasswordDatabase::homeOf;

int failures = 0; // that a look-up has still to give

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

TEST(PasswordDatabaseTest, givesTheHomeOfTheUser)
{
    const passwd *const own = getpwuid(getuid());
    EXPECT_EQ(homeOf(getuid()), own != nullptr ? own->pw_dir : "/");
}

TEST(PasswordDatabaseTest, givesTheRootWhereNoHomeIsRecorded)
{
    for (const auto lookup : {nobody, withoutHome, withEmptyHome, broken})
        EXPECT_EQ(homeOf(7, lookup), "/");
}

TEST(PasswordDatabaseTest, asksAgainAfterAnInterruption)
{
    failures = 3;
    EXPECT_EQ(homeOf(7, interrupted), "/home/patient");
}

TEST(PasswordDatabaseTest, makesRoomForALongEntry)
{
    EXPECT_EQ(homeOf(7, needingRoom), "/home/long");
}

} // namespace Loadwick
