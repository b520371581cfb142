#include "support/InMemoryFileSystem.h"

#include <gtest/gtest.h>

namespace Loadwick {

using EntryKind = FileSystem::EntryKind;
using Walk = FileSystem::Walk;

TEST(InMemoryFileSystemTest, listsEntriesInOrderOfAddition)
{
    InMemoryFileSystem fileSystem;
    fileSystem.add("/r/b", EntryKind::folder);
    fileSystem.add("/r/a", EntryKind::file);
    fileSystem.add("/r/b/c", EntryKind::other);
    std::vector<std::pair<std::string, EntryKind>> seen;
    fileSystem.list("/r", [&](const std::string &name, EntryKind kind) {
        seen.emplace_back(name, kind);
        return Walk::proceed;
    });
    EXPECT_EQ(seen, (std::vector<std::pair<std::string, EntryKind>>{{"b", EntryKind::folder},
                                                                    {"a", EntryKind::file}}));
}

TEST(InMemoryFileSystemTest, stopsWhenToldAndRecordsTheListing)
{
    InMemoryFileSystem fileSystem;
    fileSystem.add("/r/a", EntryKind::file);
    fileSystem.add("/r/b", EntryKind::file);
    int visits = 0;
    const auto stopAtOnce = [&](const std::string &, EntryKind) {
        ++visits;
        return Walk::stop;
    };
    fileSystem.list("/r", stopAtOnce);
    fileSystem.list("/missing", stopAtOnce);
    EXPECT_EQ(visits, 1);
    EXPECT_EQ(fileSystem.listed(), (std::vector<std::filesystem::path>{"/r", "/missing"}));
}

TEST(InMemoryFileSystemTest, holdsWhatWasAdded)
{
    InMemoryFileSystem fileSystem;
    fileSystem.add("/r/a", EntryKind::file);
    EXPECT_TRUE(fileSystem.mayHold("/r/a"));
    EXPECT_FALSE(fileSystem.mayHold("/r/b"));
    EXPECT_FALSE(fileSystem.mayHold("/a"));
}

} // namespace Loadwick
