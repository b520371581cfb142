#include "history/ScanHistoryStore.h"

#include <csignal>
#include <string>

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <unistd.h>

#include "history/ScanHistoryFile.h"
#include "samples/TemporaryFolder.h"
#include "support/DescriptorShortage.h"
#include "support/RecordedScanBuilder.h"

namespace Loadwick {

namespace fs = std::filesystem;

namespace {

using Scans = std::vector<RecordedScan>;

RecordedScan scanAt(std::int64_t second, const std::string &name = "webshop")
{
    return RecordedScanBuilder().at(second).named(name).build();
}

void write(const ScanHistoryStore &store, const ScanHistoryFile &file)
{
    fs::create_directories(store.directory());
    const TemporaryFolder elsewhere;
    fs::copy_file(elsewhere.write("file", file.encoded()), store.fileURL(),
                  fs::copy_options::overwrite_existing);
}

Scans scansAt(std::int64_t first, std::int64_t count)
{
    Scans scans;
    for (std::int64_t second = first; second < first + count; ++second)
        scans.push_back(scanAt(second));
    return scans;
}

rlimit generousLimit = {};

void liftLimit(int)
{
    setrlimit(RLIMIT_NOFILE, &generousLimit);
}

Scans recordedIn(const fs::path &path)
{
    return ScanHistoryFile::decoded(contentOf(path)).value().scans;
}

} // namespace

class ScanHistoryStoreTest : public testing::Test
{
protected:
    const TemporaryFolder folder;
    ScanHistoryStore store{folder.path()};
};

TEST_F(ScanHistoryStoreTest, keepsItsFileInTheUsersDataFolder)
{
    using Store = ScanHistoryStore;
    EXPECT_EQ(Store::defaultDirectory({{"HOME", "/home/a"}}), "/home/a/.local/share/Loadwick");
    EXPECT_EQ(Store::defaultDirectory({{"HOME", "/home/a"}, {"XDG_DATA_HOME", "/data"}}),
              "/data/Loadwick");
    for (const std::string unusable : {"", "relative/data", "~/data"})
        EXPECT_EQ(Store::defaultDirectory({{"HOME", "/home/a"}, {"XDG_DATA_HOME", unusable}}),
                  "/home/a/.local/share/Loadwick");
    EXPECT_EQ(Store("/data/Loadwick").fileURL(), "/data/Loadwick/scan-history.json");
}

TEST_F(ScanHistoryStoreTest, constructionCreatesNothing)
{
    EXPECT_TRUE(ScanHistoryStore(folder.path() / "a/b").load().empty());
    EXPECT_FALSE(fs::exists(folder.path() / "a"));
}

TEST_F(ScanHistoryStoreTest, createsTheFolderAndTheFileAtTheFirstAppend)
{
    ScanHistoryStore nested(folder.path() / "a/b");
    const RecordedScan scan = scanAt(1);
    EXPECT_EQ(nested.append(scan), Scans{scan});
    EXPECT_EQ(ScanHistoryFile::decoded(contentOf(nested.fileURL())),
              (ScanHistoryFile{.version = 1, .scans = {scan}}));
    EXPECT_EQ(static_cast<unsigned>(fs::status(nested.fileURL()).permissions()), 0600U);
    EXPECT_EQ(nested.load(), Scans{scan});
}

TEST_F(ScanHistoryStoreTest, readsTheFileAtEveryCall)
{
    const RecordedScan own = scanAt(1);
    const RecordedScan foreign = scanAt(2);
    EXPECT_EQ(store.append(own).size(), 1U);
    EXPECT_EQ(ScanHistoryStore(folder.path()).append(foreign).size(), 2U);
    EXPECT_EQ(store.load(), (Scans{own, foreign}));
}

TEST_F(ScanHistoryStoreTest, treatsAnotherVersionAsEmptyAndOverwritesIt)
{
    for (const std::int64_t version : {0, 2, -1}) {
        write(store, {.version = version, .scans = {scanAt(1)}});
        EXPECT_TRUE(store.load().empty());
        const RecordedScan scan = scanAt(2);
        EXPECT_EQ(store.append(scan), Scans{scan});
        EXPECT_EQ(ScanHistoryFile::decoded(contentOf(store.fileURL())),
                  (ScanHistoryFile{.version = 1, .scans = {scan}}));
    }
}

TEST_F(ScanHistoryStoreTest, treatsAFileWithOneBadScanAsEmpty)
{
    std::string json = ScanHistoryFile{.version = 1, .scans = scansAt(1, 3)}.encoded();
    json.replace(json.rfind("\"total\""), 7, "\"tota1\"");
    folder.write("scan-history.json", json);
    EXPECT_TRUE(store.load().empty());
}

TEST_F(ScanHistoryStoreTest, leavesOutAScanThatCannotBeAddedToTheOlderOnes)
{
    constexpr std::int64_t many = 9'000'000'000'000'000'000;
    Scans scans;
    for (const std::int64_t tokens : {many, many, std::int64_t{5}})
        scans.push_back(RecordedScanBuilder().withCategory("tools", tokens).build());
    write(store, {.version = 1, .scans = scans});
    EXPECT_EQ(store.load(), (Scans{scans[0], scans[2]}));
    EXPECT_EQ(store.append(scans[1]), (Scans{scans[0], scans[2], scans[1]}));
    EXPECT_EQ(store.load(), (Scans{scans[0], scans[2]}));
}

TEST_F(ScanHistoryStoreTest, treatsInvalidJsonAsEmptyAndOverwritesIt)
{
    folder.write("scan-history.json", "{\"scans\" : [");
    EXPECT_TRUE(store.load().empty());
    EXPECT_EQ(store.append(scanAt(1)).size(), 1U);
    EXPECT_EQ(store.load().size(), 1U);
}

TEST_F(ScanHistoryStoreTest, keepsTheNewestTwoHundredScans)
{
    const Scans before = scansAt(1, 200);
    write(store, {.version = 1, .scans = before});
    const RecordedScan added = scanAt(1'000);
    const Scans after = store.append(added);
    ASSERT_EQ(after.size(), 200U);
    EXPECT_EQ(after.front(), before[1]);
    EXPECT_EQ(after.back(), added);
    EXPECT_EQ(store.load(), after);
}

TEST_F(ScanHistoryStoreTest, dropsAScanThatIsOlderThanTwoHundredOthers)
{
    const Scans before = scansAt(1, 200);
    write(store, {.version = 1, .scans = before});
    EXPECT_EQ(store.append(scanAt(0)), before);
}

TEST_F(ScanHistoryStoreTest, trimsALongerFileAtTheNextAppendOnly)
{
    write(store, {.version = 1, .scans = scansAt(1, 250)});
    EXPECT_EQ(store.load().size(), 250U);
    EXPECT_EQ(store.append(scanAt(1'000)).size(), 200U);
}

TEST_F(ScanHistoryStoreTest, ordersScansByDateThenByRepositoryName)
{
    const RecordedScan late = scanAt(9, "a");
    const RecordedScan laterName = scanAt(5, "b");
    const RecordedScan earlierName = scanAt(5, "B");
    write(store, {.version = 1, .scans = {late, laterName, earlierName}});
    EXPECT_EQ(store.load(), (Scans{earlierName, laterName, late}));
}

TEST_F(ScanHistoryStoreTest, sortsStably)
{
    const Scans equals = {scanAt(5), scanAt(5), scanAt(5)};
    write(store, {.version = 1, .scans = {equals[0], equals[1]}});
    EXPECT_EQ(store.append(equals[2]), equals);
    EXPECT_EQ(store.load(), equals);
}

TEST_F(ScanHistoryStoreTest, returnsTheNewListEvenWhenWritingFails)
{
    folder.write("file", "in the way");
    ScanHistoryStore nested(folder.path() / "file");
    const RecordedScan scan = scanAt(1);
    EXPECT_EQ(nested.append(scan), Scans{scan});
    EXPECT_TRUE(nested.load().empty());
    nested.clear();
    EXPECT_EQ(contentOf(folder.path() / "file"), "in the way");
}

TEST_F(ScanHistoryStoreTest, clearsAMissingFileSilently)
{
    ScanHistoryStore nested(folder.path() / "missing");
    nested.clear();
    EXPECT_FALSE(fs::exists(folder.path() / "missing"));
}

TEST_F(ScanHistoryStoreTest, clearsWhatItRecorded)
{
    folder.write("neighbour", "kept");
    static_cast<void>(store.append(scanAt(1)));
    store.clear();
    EXPECT_FALSE(fs::exists(store.fileURL()));
    EXPECT_TRUE(store.load().empty());
    EXPECT_TRUE(fs::exists(folder.path() / "neighbour"));
}

TEST_F(ScanHistoryStoreTest, leavesAFolderWithTheFilesNameAlone)
{
    folder.write("scan-history.json/inner", "kept");
    EXPECT_TRUE(store.load().empty());
    EXPECT_EQ(store.append(scanAt(1)).size(), 1U);
    store.clear();
    EXPECT_EQ(contentOf(folder.path() / "scan-history.json/inner"), "kept");
}

TEST_F(ScanHistoryStoreTest, neverBlocksOnAFifoWithTheFilesName)
{
    ASSERT_EQ(mkfifo(store.fileURL().c_str(), 0600), 0);
    EXPECT_TRUE(store.load().empty());
    EXPECT_EQ(store.append(scanAt(1)).size(), 1U);
    EXPECT_TRUE(fs::is_fifo(store.fileURL()));
    store.clear();
    EXPECT_EQ(store.append(scanAt(1)).size(), 1U);
    EXPECT_TRUE(fs::is_regular_file(store.fileURL()));
}

TEST_F(ScanHistoryStoreTest, readsWritesAndClearsThroughALink)
{
    const fs::path target = folder.path() / "synced/history.json";
    fs::create_directories(target.parent_path());
    fs::create_symlink("synced/history.json", store.fileURL());
    const RecordedScan scan = scanAt(1);
    EXPECT_TRUE(store.load().empty());
    EXPECT_EQ(store.append(scan), Scans{scan});
    EXPECT_EQ(recordedIn(target), Scans{scan});
    EXPECT_TRUE(fs::is_symlink(store.fileURL()));
    EXPECT_EQ(store.load(), Scans{scan});
    store.clear();
    EXPECT_FALSE(fs::exists(target));
    EXPECT_TRUE(fs::is_symlink(store.fileURL()));
}

TEST_F(ScanHistoryStoreTest, overwritesAnUnreadableFile)
{
    static_cast<void>(store.append(scanAt(1)));
    fs::permissions(store.fileURL(), fs::perms::none);
    const bool isReadableAnyway = access(store.fileURL().c_str(), R_OK) == 0; // as root
    const Scans after = store.append(scanAt(2));
    EXPECT_EQ(after.size(), isReadableAnyway ? 2U : 1U);
    EXPECT_EQ(recordedIn(store.fileURL()), after);
}

TEST_F(ScanHistoryStoreTest, removesATemporaryFileThatACrashLeft)
{
    folder.write(".scan-history.json.a1B2c3", "half");
    static_cast<void>(store.append(scanAt(1)));
    EXPECT_FALSE(fs::exists(folder.path() / ".scan-history.json.a1B2c3"));
}

TEST_F(ScanHistoryStoreTest, treatsAFileBeyondItsLimitAsEmpty)
{
    std::string text = ScanHistoryFile{.version = 1, .scans = {scanAt(1)}}.encoded();
    text.insert(1, ScanHistoryStore::maximumBytes - text.size(), ' ');
    writeFile(store.fileURL(), text);
    EXPECT_EQ(store.load().size(), 1U);
    text.insert(1, " ");
    writeFile(store.fileURL(), text);
    EXPECT_TRUE(store.load().empty());
}

TEST_F(ScanHistoryStoreTest, retriesATransientShortageOfDescriptors)
{
    static_cast<void>(store.append(scanAt(1)));
    getrlimit(RLIMIT_NOFILE, &generousLimit);
    const DescriptorShortage shortage;
    // A timer's signal lifts the limit in the first pause: unlike a thread, it is in time even on a
    // busy machine.
    const auto before = std::signal(SIGALRM, liftLimit);
    const itimerval soon = {.it_interval = {}, .it_value = {.tv_sec = 0, .tv_usec = 500}};
    setitimer(ITIMER_REAL, &soon, nullptr);
    const Scans loaded = store.load();
    const itimerval never = {};
    setitimer(ITIMER_REAL, &never, nullptr);
    std::signal(SIGALRM, before);
    EXPECT_EQ(loaded.size(), 1U);
}

TEST_F(ScanHistoryStoreTest, recordsNothingDuringALastingShortage)
{
    static_cast<void>(store.append(scanAt(1)));
    const Scans known = store.load();
    const RecordedScan scan = scanAt(0, "other");
    Scans loaded;
    Scans appended;
    {
        const DescriptorShortage shortage;
        loaded = store.load();
        appended = store.append(scan, known);
    }
    EXPECT_TRUE(loaded.empty());
    EXPECT_EQ(appended, (Scans{scan, known.front()}));
    EXPECT_EQ(store.load(), known);
}

TEST_F(ScanHistoryStoreTest, sharesTheCategoriesOfWhatIsKnown)
{
    RecordedScan recorded = scanAt(1);
    recorded.categories = {{.name = "System prompt", .tokens = 1}};
    RecordedScan later = scanAt(2);
    later.categories = {{.name = "Skills", .tokens = 1}};
    const Scans known = store.append(later, store.append(recorded));
    RecordedScan changed = known.front();
    changed.categories = {{.name = "System prompt", .tokens = 2}};
    const Scans appended = store.append(scanAt(3), known);
    ASSERT_EQ(appended.size(), 3U);
    for (std::size_t index = 0; index < known.size(); ++index)
        EXPECT_EQ(appended[index].categories.begin(), known[index].categories.begin()) << index;
    EXPECT_EQ(store.append(scanAt(4), {scanAt(1), changed}).front(), recorded);
}

TEST_F(ScanHistoryStoreTest, prefersTheFileToWhatIsKnown)
{
    static_cast<void>(store.append(scanAt(1)));
    EXPECT_EQ(store.append(scanAt(2), scansAt(3, 5)).size(), 2U);
}

} // namespace Loadwick
