#include "faults/driver/HistoryFixture.h"

#include <cerrno>
#include <fstream>

#include <gtest/gtest.h>

#include "history/ScanHistoryFile.h"
#include "history/ScanHistoryStore.h"
#include "samples/TemporaryFolder.h"

namespace Faults {

namespace {

using Start = HistoryFixture::Start;

const Fault passing{.call = Call::read, .errorNumber = EMFILE};
const Fault lasting{.call = Call::read, .errorNumber = EIO};
const Fault elsewhere{.call = Call::write, .errorNumber = EIO};

void put(const HistoryFixture &fixture, const std::string &bytes)
{
    std::ofstream(fixture.path(), std::ios::binary) << bytes;
}

std::string fileOf(const std::vector<Loadwick::RecordedScan> &scans)
{
    return Loadwick::ScanHistoryFile{.version = 1, .scans = scans}.encoded();
}

} // namespace

TEST(HistoryFixtureTest, acceptsAWholeFileWithOneMoreScan)
{
    const Loadwick::TemporaryFolder home;
    const HistoryFixture fixture(home.path(), Start::threeScans);
    EXPECT_TRUE(fixture.isUntouched());
    static_cast<void>(Loadwick::ScanHistoryStore(fixture.folder()).append(sampleScan(4)));
    EXPECT_FALSE(fixture.isUntouched());
    EXPECT_EQ(fixture.problemAfterAppend(std::nullopt), std::nullopt);
    EXPECT_EQ(fixture.problemAfterAppend(passing), std::nullopt);
}

TEST(HistoryFixtureTest, acceptsTheOldFileOnlyAfterAFault)
{
    const Loadwick::TemporaryFolder home;
    const HistoryFixture fixture(home.path(), Start::threeScans);
    EXPECT_TRUE(fixture.problemAfterAppend(std::nullopt));
    EXPECT_FALSE(fixture.problemAfterAppend(elsewhere));
    EXPECT_TRUE(fixture.problemAfterClear(std::nullopt));
    EXPECT_FALSE(fixture.problemAfterClear(elsewhere));
}

TEST(HistoryFixtureTest, reportsATornFile)
{
    const Loadwick::TemporaryFolder home;
    const HistoryFixture fixture(home.path(), Start::threeScans);
    const std::string whole = fileOf({sampleScan(1), sampleScan(2)});
    for (const std::string &bytes :
         {std::string(), whole.substr(0, whole.size() - 1), whole + "\n", whole + whole}) {
        put(fixture, bytes);
        EXPECT_TRUE(fixture.problemAfterAppend(lasting));
        EXPECT_TRUE(fixture.problemAfterClear(lasting));
    }
}

TEST(HistoryFixtureTest, allowsLostScansOnlyAfterAPermanentReadError)
{
    const Loadwick::TemporaryFolder home;
    const HistoryFixture fixture(home.path(), Start::threeScans);
    put(fixture, fileOf({sampleScan(4)}));
    EXPECT_FALSE(fixture.problemAfterAppend(lasting));
    EXPECT_TRUE(fixture.problemAfterAppend(passing));
    EXPECT_TRUE(fixture.problemAfterAppend(elsewhere));
    EXPECT_TRUE(fixture.problemAfterAppend(std::nullopt));
}

TEST(HistoryFixtureTest, reportsMissingAndLeftoverFiles)
{
    const Loadwick::TemporaryFolder home;
    const HistoryFixture fixture(home.path(), Start::threeScans);
    std::filesystem::remove(fixture.path());
    EXPECT_TRUE(fixture.problemAfterAppend(lasting));
    EXPECT_FALSE(fixture.problemAfterClear(std::nullopt));
    std::ofstream(fixture.folder() / ".scan-history.json.abcdef") << "x";
    EXPECT_TRUE(fixture.leftovers());
    EXPECT_TRUE(fixture.problemAfterClear(lasting));
}

TEST(HistoryFixtureTest, canStartEmpty)
{
    const Loadwick::TemporaryFolder home;
    const HistoryFixture fixture(home.path(), Start::nothing);
    EXPECT_FALSE(std::filesystem::exists(fixture.folder()));
    EXPECT_TRUE(fixture.isUntouched());
    EXPECT_FALSE(fixture.problemAfterAppend(elsewhere));
    EXPECT_TRUE(fixture.problemAfterAppend(std::nullopt));
}

} // namespace Faults
