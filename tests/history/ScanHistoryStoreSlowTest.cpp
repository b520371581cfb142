// Histories near the limit of the file.
#include "history/ScanHistoryStore.h"

#include <string>

#include <gtest/gtest.h>

#include "samples/TemporaryFolder.h"
#include "support/ProcessMemory.h"
#include "support/RecordedScanBuilder.h"

namespace Loadwick {

namespace {

constexpr std::size_t mebibyte = std::size_t{1} << 20;

/// A scan of that many categories, each of which takes 128 bytes of the file.
RecordedScan scanAt(std::int64_t second, std::size_t categoryCount)
{
    RecordedScanBuilder builder;
    builder.at(second);
    for (std::size_t count = 0; count < categoryCount; ++count)
        builder.withCategory(std::string(62, 'c'), 1);
    return builder.build();
}

} // namespace

TEST(ScanHistoryStoreSlowTest, readsBackWhatItReturned)
{
    const TemporaryFolder folder;
    ScanHistoryStore store(folder.path());
    std::vector<RecordedScan> expected;
    for (std::int64_t second = 1; second <= 5; ++second) {
        expected.push_back(scanAt(second, 20 * mebibyte / 128));
        if (expected.size() > 3)
            expected.erase(expected.begin());
        EXPECT_EQ(store.append(expected.back()), expected);
        EXPECT_EQ(store.load(), expected);
    }
    EXPECT_LE(std::filesystem::file_size(store.fileURL()), ScanHistoryStore::maximumBytes);
}

TEST(ScanHistoryStoreSlowTest, keepsTheTotalOfAScanThatIsTooLongForTheFile)
{
    const TemporaryFolder folder;
    ScanHistoryStore store(folder.path());
    const RecordedScan before = scanAt(1, 3);
    RecordedScan large = scanAt(2, 80 * mebibyte / 128);
    static_cast<void>(store.append(before));
    const PeakMemory memory;
    const std::vector<RecordedScan> after = store.append(large);
    EXPECT_LT(memory.growthInBytes(), 400 * mebibyte);
    large.categories = {};
    EXPECT_EQ(after, (std::vector<RecordedScan>{before, large}));
    EXPECT_EQ(store.load(), after);
}

} // namespace Loadwick
