#include "history/WeeklyKPIReader.h"

#include <string>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "samples/TemporaryFolder.h"
#include "support/PlainPermissions.h"

namespace Loadwick {

namespace fs = std::filesystem;

namespace {

/// A usable line of 51 bytes, its line feed among them, with a median of one digit.
std::string lineOf(int median)
{
    return R"({"median_tokens_per_session":)" + std::to_string(median) + R"(,"tokens_per_pr":22})" +
           "\n";
}

std::optional<std::int64_t> medianAt(const fs::path &path,
                                     std::size_t byteLimit = WeeklyKPIReader::maximumBytes)
{
    const auto line = WeeklyKPIReader::read(path, byteLimit);
    return line ? std::optional(line->medianTokensPerSession) : std::nullopt;
}

} // namespace

/// A folder with a log in it.
class WeeklyKPIReaderFileTest : public testing::Test
{
protected:
    fs::path write(std::string_view text) { return m_folder.write("weekly.jsonl", text); }

    TemporaryFolder m_folder;
};

TEST_F(WeeklyKPIReaderFileTest, readsTheLastLineOfTheFile)
{
    EXPECT_EQ(medianAt(write(lineOf(1) + lineOf(2))), 2);
}

TEST_F(WeeklyKPIReaderFileTest, givesNothingForAnEmptyFile)
{
    EXPECT_EQ(medianAt(write("")), std::nullopt);
}

TEST_F(WeeklyKPIReaderFileTest, givesNothingForAMissingFileOrAFolder)
{
    EXPECT_EQ(medianAt(m_folder.path() / "missing"), std::nullopt);
    EXPECT_EQ(medianAt(m_folder.path()), std::nullopt);
    EXPECT_EQ(medianAt(""), std::nullopt);
}

TEST_F(WeeklyKPIReaderFileTest, givesNothingForAFileThatMayNotBeRead)
{
    const fs::path path = write(lineOf(1));
    fs::permissions(path, fs::perms::none);
    const PlainPermissions plain;
    EXPECT_EQ(medianAt(path), std::nullopt);
}

TEST_F(WeeklyKPIReaderFileTest, givesNothingForAFileThatIsNotUtf8AsAWhole)
{
    EXPECT_EQ(medianAt(write("caf\xE9\n" + lineOf(1))), std::nullopt);
}

TEST_F(WeeklyKPIReaderFileTest, doesNotWaitForAFifo)
{
    const fs::path path = m_folder.path() / "fifo";
    ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
    EXPECT_EQ(medianAt(path), std::nullopt);
}

TEST_F(WeeklyKPIReaderFileTest, followsALink)
{
    const fs::path link = m_folder.path() / "link";
    fs::create_symlink(write(lineOf(1)), link);
    EXPECT_EQ(medianAt(link), 1);
}

TEST_F(WeeklyKPIReaderFileTest, readsAFileOfTheLimitWhole)
{
    ASSERT_EQ(lineOf(1).size(), 51U);
    EXPECT_EQ(medianAt(write(lineOf(1)), 51), 1);
}

TEST_F(WeeklyKPIReaderFileTest, readsALongFileFromTheFirstLineFeedOfItsEndOn)
{
    const fs::path path = write(lineOf(1) + lineOf(2));
    EXPECT_EQ(medianAt(path, 52), 2);
    EXPECT_EQ(medianAt(path, 51), std::nullopt)
        << "the end begins with a line but has no line feed "
           "before it";
    EXPECT_EQ(medianAt(path, 20), std::nullopt);
}

TEST_F(WeeklyKPIReaderFileTest, takesNoPartOfALineForALine)
{
    // Cut in the middle, the first line would read as a usable one.
    const fs::path path = write("{\"x\":\"" + lineOf(1) + lineOf(2).substr(0, 30));
    EXPECT_EQ(medianAt(path, 81), std::nullopt);
}

TEST_F(WeeklyKPIReaderFileTest, wantsNoUtf8BeforeTheEndThatItReads)
{
    // The limit cuts "é" in two; the line feed behind it makes good.
    EXPECT_EQ(medianAt(write("caf\xE9 \u00E9\n" + lineOf(1)), 53), 1);
}

TEST_F(WeeklyKPIReaderFileTest, givesNothingForALongFileWithoutALineFeed)
{
    EXPECT_EQ(medianAt(write(std::string(200, ' ')), 100), std::nullopt);
}

} // namespace Loadwick
