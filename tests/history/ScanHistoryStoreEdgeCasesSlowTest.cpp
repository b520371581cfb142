#include <algorithm>
#include <csignal>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "history/ScanHistoryFile.h"
#include "history/ScanHistoryStore.h"
#include "samples/TemporaryFolder.h"
#include "support/PlainPermissions.h"
#include "support/RecordedScanBuilder.h"

// Tests that need a separate process, or a memory limit that no sanitizer survives.

namespace Loadwick {

namespace fs = std::filesystem;

namespace {

RecordedScan scanAt(std::int64_t second, const std::string &name = "webshop")
{
    return RecordedScanBuilder().at(second).named(name).build();
}

/// The exit status of `program`, run in a child; -1 when a signal ended it.
template<typename Program>
int statusOf(Program program)
{
    const pid_t child = fork();
    if (child == 0)
        _exit(program());
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

void limitMemoryTo(rlim_t byteCount)
{
    const rlimit limit{.rlim_cur = byteCount, .rlim_max = byteCount};
    setrlimit(RLIMIT_AS, &limit);
}

void limitFilesTo(rlim_t byteCount)
{
    const rlimit limit{.rlim_cur = byteCount, .rlim_max = byteCount};
    std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &limit);
}

std::size_t entriesIn(const fs::path &folder)
{
    return static_cast<std::size_t>(
        std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
}

/// Appends a program's scans in order; whether each list returned held the scan just appended.
bool appendScans(const fs::path &folder, const std::string &name)
{
    ScanHistoryStore store(folder);
    for (int count = 0; count < 60; ++count) {
        const RecordedScan scan = scanAt(count, name);
        const std::vector<RecordedScan> list = store.append(scan);
        if (std::find(list.begin(), list.end(), scan) == list.end())
            return false;
    }
    return true;
}

} // namespace

TEST(ScanHistoryStoreEdgeCasesSlowTest, replacesTenGigabytesWithinSixtyFourMegabytes)
{
    const TemporaryFolder folder;
    ScanHistoryStore store(folder.path());
    static_cast<void>(store.append(scanAt(1)));
    fs::resize_file(store.fileURL(), std::uintmax_t{10} << 30); // sparse
    const int status = statusOf([&store] {
        limitMemoryTo(rlim_t{64} << 20);
        alarm(20);
        const bool isEmpty = store.load().empty();
        return isEmpty && store.append(scanAt(2)).size() == 1 ? 0 : 1;
    });
    EXPECT_EQ(status, 0);
    ASSERT_LT(fs::file_size(store.fileURL()), 10'000U);
    EXPECT_EQ(store.load().size(), 1U);
}

TEST(ScanHistoryStoreEdgeCasesSlowTest, keepsTheOldFileBeyondAQuota)
{
    const TemporaryFolder folder;
    ScanHistoryStore store(folder.path());
    static_cast<void>(store.append(scanAt(1)));
    const std::string before = contentOf(store.fileURL());
    const int status = statusOf([&] {
        limitFilesTo(before.size());
        return store.append(scanAt(2)).size() == 2 ? 0 : 1;
    });
    EXPECT_EQ(status, 0);
    EXPECT_EQ(contentOf(store.fileURL()), before);
    EXPECT_EQ(entriesIn(folder.path()), 1U);
}

TEST(ScanHistoryStoreEdgeCasesSlowTest, keepsTheOldFileInAReadOnlyFolder)
{
    const TemporaryFolder folder;
    const PlainPermissions plain;
    ScanHistoryStore store(folder.path());
    static_cast<void>(store.append(scanAt(1)));
    const std::string before = contentOf(store.fileURL());
    fs::permissions(folder.path(), fs::perms::owner_read | fs::perms::owner_exec);
    EXPECT_EQ(store.append(scanAt(2)).size(), 2U);
    store.clear();
    EXPECT_EQ(contentOf(store.fileURL()), before);
    EXPECT_EQ(entriesIn(folder.path()), 1U);
}

TEST(ScanHistoryStoreEdgeCasesSlowTest, survivesConcurrentAppendsByTwoPrograms)
{
    const TemporaryFolder folder;
    const ScanHistoryStore store(folder.path());
    const pid_t other = fork();
    if (other == 0)
        _exit(appendScans(folder.path(), "other") ? 0 : 1);
    int status = 0;
    bool isWhole = true;
    EXPECT_TRUE(appendScans(folder.path(), "first"));
    while (waitpid(other, &status, WNOHANG) == 0)
        isWhole = isWhole && ScanHistoryFile::decoded(contentOf(store.fileURL())).has_value();
    EXPECT_EQ(status, 0);
    EXPECT_TRUE(isWhole);
    const std::vector<RecordedScan> left = store.load();
    EXPECT_GE(left.size(), 1U);
    EXPECT_LE(left.size(), 120U);
    EXPECT_EQ(entriesIn(folder.path()), 1U);
}

} // namespace Loadwick
