#include "history/WeeklyKPIReader.h"

#include <limits>
#include <string>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "samples/TemporaryFolder.h"
#include "support/PlainPermissions.h"

namespace Loadwick {

namespace fs = std::filesystem;

namespace {

/// A usable line with that median and any further members.
std::string lineOf(std::int64_t median, std::string_view rest = {})
{
    return R"({"median_tokens_per_session":)" + std::to_string(median) + R"(,"tokens_per_pr":2)" +
           std::string(rest) + "}";
}

std::optional<std::int64_t> medianIn(std::string_view text)
{
    const auto line = WeeklyKPIReader::parseLatest(text);
    return line ? std::optional(line->medianTokensPerSession) : std::nullopt;
}

WeeklyKPILine parsed(std::string_view rest)
{
    return WeeklyKPIReader::parseLatest(lineOf(1, rest)).value();
}

/// A usable line of 51 bytes with its line feed and a median of one digit.
std::string loggedLine(int median)
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

WeeklyKPILine figures(std::int64_t median, std::int64_t tokensPerPR)
{
    return {.medianTokensPerSession = median,
            .tokensPerPR = tokensPerPR,
            .totalTokens = std::nullopt,
            .mergedPRs = std::nullopt,
            .windowStart = "unknown",
            .windowEnd = "unknown",
            .timestamp = "unknown"};
}

} // namespace

class WeeklyKPIReaderTest : public testing::Test
{
protected:
    fs::path write(std::string_view text) { return m_folder.write("weekly.jsonl", text); }

    TemporaryFolder m_folder;
};

TEST_F(WeeklyKPIReaderTest, readsEveryField)
{
    const WeeklyKPILine expected{.medianTokensPerSession = 27'510'462,
                                 .tokensPerPR = 37'000'000,
                                 .totalTokens = 1'500'000'000,
                                 .mergedPRs = 41,
                                 .windowStart = "2026-08-17",
                                 .windowEnd = "2026-08-23",
                                 .timestamp = "2026-08-24T06:00:00Z"};
    EXPECT_EQ(WeeklyKPIReader::parseLatest(
                  R"({"median_tokens_per_session":27510462,"tokens_per_pr":37000000,)"
                  R"("total_tokens":1500000000,"merged_prs":41,"host":{"name":"x"},)"
                  R"("window":{"start":"2026-08-17","end":"2026-08-23","days":7},)"
                  R"("timestamp":"2026-08-24T06:00:00Z"})"),
              expected);
}

TEST_F(WeeklyKPIReaderTest, theLastUsableLineWinsAtAnyDate)
{
    EXPECT_EQ(
        medianIn(lineOf(1, R"(,"timestamp":"2030")") + "\n" + lineOf(2, R"(,"timestamp":"2020")")),
        2);
}

TEST_F(WeeklyKPIReaderTest, fallsBackFromATruncatedLineToTheOneBefore)
{
    EXPECT_EQ(medianIn(lineOf(1) + "\n" + lineOf(2).substr(0, 40)), 1);
}

TEST_F(WeeklyKPIReaderTest, skipsALineWithoutBothRequiredFigures)
{
    EXPECT_EQ(medianIn(lineOf(1) + "\n{\"median_tokens_per_session\":2}"), 1);
    EXPECT_EQ(medianIn(lineOf(1) + "\n{\"tokens_per_pr\":2}"), 1);
}

TEST_F(WeeklyKPIReaderTest, skipsALineWhoseRequiredFigureIsNotAnInteger)
{
    for (const char *figure : {"\"2\"", "2.5", "2.0", "2e3", "null", "true", "[2]", "{}",
                               "9223372036854775808", "-9223372036854775808"})
        EXPECT_EQ(medianIn(lineOf(1) + "\n{\"median_tokens_per_session\":" + figure +
                           ",\"tokens_per_pr\":2}"),
                  1)
            << figure;
}

TEST_F(WeeklyKPIReaderTest, theLargestAndTheSmallestComparableFiguresCount)
{
    EXPECT_EQ(medianIn(lineOf(9'223'372'036'854'775'807)), 9'223'372'036'854'775'807);
    const auto least = WeeklyKPIReader::parseLatest(lineOf(-9'223'372'036'827'265'346)).value();
    EXPECT_EQ(least.medianDelta(), std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(medianIn(lineOf(-9'223'372'036'827'265'347)), std::nullopt);
}

TEST_F(WeeklyKPIReaderTest, skipsALineThatIsNotAnObject)
{
    for (const char *line : {"[1]", "1", "\"text\"", "null", "words", "{", "{} {}"})
        EXPECT_EQ(medianIn(lineOf(1) + "\n" + line), 1) << line;
}

TEST_F(WeeklyKPIReaderTest, missingStringsReadUnknown)
{
    const WeeklyKPILine line = parsed("");
    EXPECT_EQ(line.windowStart, "unknown");
    EXPECT_EQ(line.windowEnd, "unknown");
    EXPECT_EQ(line.timestamp, "unknown");
}

TEST_F(WeeklyKPIReaderTest, stringsOfAnotherTypeReadUnknown)
{
    const WeeklyKPILine line = parsed(R"(,"window":{"start":17,"end":["x"]},"timestamp":null)");
    EXPECT_EQ(line.windowStart, "unknown");
    EXPECT_EQ(line.windowEnd, "unknown");
    EXPECT_EQ(line.timestamp, "unknown");
    for (const char *window : {"\"start\"", "[\"start\"]", "null", "{}"})
        EXPECT_EQ(parsed(std::string(",\"window\":") + window).windowStart, "unknown") << window;
}

TEST_F(WeeklyKPIReaderTest, oneEndOfTheWindowIsReadWithoutTheOther)
{
    const WeeklyKPILine line = parsed(R"(,"window":{"end":"Sunday"})");
    EXPECT_EQ(line.windowStart, "unknown");
    EXPECT_EQ(line.windowEnd, "Sunday");
}

TEST_F(WeeklyKPIReaderTest, emptyStringsStayEmpty)
{
    EXPECT_EQ(parsed(R"(,"timestamp":"")").timestamp, "");
}

TEST_F(WeeklyKPIReaderTest, optionalFiguresOfAnotherTypeAreAbsent)
{
    const WeeklyKPILine line = parsed(R"(,"total_tokens":"5","merged_prs":1.5)");
    EXPECT_EQ(line.totalTokens, std::nullopt);
    EXPECT_EQ(line.mergedPRs, std::nullopt);
    EXPECT_EQ(line.medianTokensPerSession, 1);
}

TEST_F(WeeklyKPIReaderTest, lastDuplicateKeyWins)
{
    EXPECT_EQ(medianIn(lineOf(1, R"(,"median_tokens_per_session":7)")), 7);
    EXPECT_EQ(medianIn(lineOf(1, R"(,"median_tokens_per_session":"x")")), std::nullopt);
    EXPECT_EQ(parsed(R"(,"window":{"start":"a"},"window":{"end":"b"})").windowStart, "unknown");
}

TEST_F(WeeklyKPIReaderTest, ignoresWhiteSpaceAroundALine)
{
    EXPECT_EQ(medianIn("  \t" + lineOf(1) + " \u00A0\n   \n\n"), 1);
    EXPECT_EQ(medianIn(lineOf(1) + "\r\n" + lineOf(2) + "\r\n"), 2);
}

TEST_F(WeeklyKPIReaderTest, ignoresOneByteOrderMarkBeforeALine)
{
    EXPECT_EQ(medianIn("\uFEFF" + lineOf(1)), 1);
    EXPECT_EQ(medianIn("\uFEFF \t" + lineOf(1) + "\n\uFEFF" + lineOf(2) + "\n"), 2);
    EXPECT_EQ(medianIn("\uFEFF\uFEFF" + lineOf(1)), std::nullopt);
    EXPECT_EQ(medianAt(write("\uFEFF" + loggedLine(3))), 3);
}

TEST_F(WeeklyKPIReaderTest, findsNothingInATextWithoutLines)
{
    for (const char *text : {"", "\n", " \n\t\n", "\r\n\r\n"})
        EXPECT_EQ(medianIn(text), std::nullopt);
}

TEST_F(WeeklyKPIReaderTest, theLogIsUnderTheHomeFolder)
{
    EXPECT_EQ(WeeklyKPIReader::defaultPath("/home/someone"),
              "/home/someone/Library/Logs/token-kpi/weekly.jsonl");
    EXPECT_EQ(WeeklyKPIReader::defaultPath("/"), "//Library/Logs/token-kpi/weekly.jsonl");
}

TEST_F(WeeklyKPIReaderTest, readsTheLastLineOfTheFile)
{
    EXPECT_EQ(medianAt(write(loggedLine(1) + loggedLine(2))), 2);
}

TEST_F(WeeklyKPIReaderTest, returnsNothingForAnEmptyFile)
{
    EXPECT_EQ(medianAt(write("")), std::nullopt);
}

TEST_F(WeeklyKPIReaderTest, returnsNothingForAMissingFileOrAFolder)
{
    EXPECT_EQ(medianAt(m_folder.path() / "missing"), std::nullopt);
    EXPECT_EQ(medianAt(m_folder.path()), std::nullopt);
    EXPECT_EQ(medianAt(""), std::nullopt);
}

TEST_F(WeeklyKPIReaderTest, returnsNothingForAnUnreadableFile)
{
    const fs::path path = write(loggedLine(1));
    fs::permissions(path, fs::perms::none);
    const PlainPermissions plain;
    EXPECT_EQ(medianAt(path), std::nullopt);
}

TEST_F(WeeklyKPIReaderTest, requiresTheWholeFileToBeUtf8)
{
    EXPECT_EQ(medianAt(write("caf\xE9\n" + loggedLine(1))), std::nullopt);
}

TEST_F(WeeklyKPIReaderTest, doesNotBlockOnAFifo)
{
    const fs::path path = m_folder.path() / "fifo";
    ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
    EXPECT_EQ(medianAt(path), std::nullopt);
}

TEST_F(WeeklyKPIReaderTest, followsALink)
{
    const fs::path link = m_folder.path() / "link";
    fs::create_symlink(write(loggedLine(1)), link);
    EXPECT_EQ(medianAt(link), 1);
}

TEST_F(WeeklyKPIReaderTest, readsAWholeFileAtTheLimit)
{
    ASSERT_EQ(loggedLine(1).size(), 51U);
    EXPECT_EQ(medianAt(write(loggedLine(1)), 51), 1);
}

TEST_F(WeeklyKPIReaderTest, readsALongFilesEndAfterItsFirstLineFeed)
{
    const fs::path path = write(loggedLine(1) + loggedLine(2));
    EXPECT_EQ(medianAt(path, 52), 2);
    EXPECT_EQ(medianAt(path, 51), std::nullopt)
        << "the end begins with a line but has no line feed "
           "before it";
    EXPECT_EQ(medianAt(path, 20), std::nullopt);
}

TEST_F(WeeklyKPIReaderTest, skipsATruncatedFirstLine)
{
    // Cut in the middle, the first line would read as a usable one.
    const fs::path path = write("{\"x\":\"" + loggedLine(1) + loggedLine(2).substr(0, 30));
    EXPECT_EQ(medianAt(path, 81), std::nullopt);
}

TEST_F(WeeklyKPIReaderTest, ignoresIllFormedUtf8BeforeItsWindow)
{
    // The limit cuts "é" in two; reading resumes after the line feed.
    EXPECT_EQ(medianAt(write("caf\xE9 \u00E9\n" + loggedLine(1)), 53), 1);
}

TEST_F(WeeklyKPIReaderTest, returnsNothingForALongFileWithoutALineFeed)
{
    EXPECT_EQ(medianAt(write(std::string(200, ' ')), 100), std::nullopt);
    EXPECT_EQ(medianAt(write("  " + lineOf(1)), lineOf(1).size()), std::nullopt);
}

TEST_F(WeeklyKPIReaderTest, namesTheSourceOfItsTargets)
{
    EXPECT_EQ(
        WeeklyKPIReader::targetsSource,
        "halden-machine-config docs/data/token-kpi-baseline-2026-08-09.json (locked baseline)");
}

TEST_F(WeeklyKPIReaderTest, aDeltaIsTheDifferenceFromTheTarget)
{
    EXPECT_EQ(figures(27'510'462, 0).medianDelta(), 0);
    EXPECT_EQ(figures(27'510'461, 0).medianDelta(), -1);
    EXPECT_EQ(figures(27'511'696, 0).medianDelta(), 1'234);
    EXPECT_EQ(figures(0, 37'681'168).tokensPerPRDelta(), 0);
    EXPECT_EQ(figures(0, 37'681'167).tokensPerPRDelta(), -1);
    EXPECT_EQ(figures(0, 37'682'402).tokensPerPRDelta(), 1'234);
}

TEST_F(WeeklyKPIReaderTest, endsTheProgramWhenADeltaOverflows)
{
    constexpr std::int64_t smallest = std::numeric_limits<std::int64_t>::min();
    EXPECT_DEATH((void)figures(smallest, 0).medianDelta(), "does not fit 64 bits");
    EXPECT_DEATH((void)figures(0, smallest).tokensPerPRDelta(), "does not fit 64 bits");
}

} // namespace Loadwick
