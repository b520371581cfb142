#include "history/WeeklyKPIReader.h"

#include <limits>
#include <string>

#include <gtest/gtest.h>

namespace Loadwick {

namespace {

/// A usable line with that median, and whatever else is given.
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

} // namespace

TEST(WeeklyKPIReaderTest, readsEveryField)
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

TEST(WeeklyKPIReaderTest, theLastUsableLineWinsWhateverItsDate)
{
    EXPECT_EQ(
        medianIn(lineOf(1, R"(,"timestamp":"2030")") + "\n" + lineOf(2, R"(,"timestamp":"2020")")),
        2);
}

TEST(WeeklyKPIReaderTest, aLineThatIsCutOffGivesWayToTheOneBefore)
{
    EXPECT_EQ(medianIn(lineOf(1) + "\n" + lineOf(2).substr(0, 40)), 1);
}

TEST(WeeklyKPIReaderTest, aLineWithoutBothRequiredFiguresIsSkipped)
{
    EXPECT_EQ(medianIn(lineOf(1) + "\n{\"median_tokens_per_session\":2}"), 1);
    EXPECT_EQ(medianIn(lineOf(1) + "\n{\"tokens_per_pr\":2}"), 1);
}

TEST(WeeklyKPIReaderTest, aRequiredFigureThatIsNoIntegerIsSkipped)
{
    for (const char *figure : {"\"2\"", "2.5", "2.0", "2e3", "null", "true", "[2]", "{}",
                               "9223372036854775808", "-9223372036854775808"})
        EXPECT_EQ(medianIn(lineOf(1) + "\n{\"median_tokens_per_session\":" + figure +
                           ",\"tokens_per_pr\":2}"),
                  1)
            << figure;
}

TEST(WeeklyKPIReaderTest, theLargestAndTheSmallestComparableFiguresCount)
{
    EXPECT_EQ(medianIn(lineOf(9'223'372'036'854'775'807)), 9'223'372'036'854'775'807);
    const auto least = WeeklyKPIReader::parseLatest(lineOf(-9'223'372'036'827'265'346)).value();
    EXPECT_EQ(least.medianDelta(), std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(medianIn(lineOf(-9'223'372'036'827'265'347)), std::nullopt);
}

TEST(WeeklyKPIReaderTest, aLineThatIsNoObjectIsSkipped)
{
    for (const char *line : {"[1]", "1", "\"text\"", "null", "words", "{", "{} {}"})
        EXPECT_EQ(medianIn(lineOf(1) + "\n" + line), 1) << line;
}

TEST(WeeklyKPIReaderTest, missingWordsReadUnknown)
{
    const WeeklyKPILine line = parsed("");
    EXPECT_EQ(line.windowStart, "unknown");
    EXPECT_EQ(line.windowEnd, "unknown");
    EXPECT_EQ(line.timestamp, "unknown");
}

TEST(WeeklyKPIReaderTest, wordsOfAnotherTypeReadUnknown)
{
    const WeeklyKPILine line = parsed(R"(,"window":{"start":17,"end":["x"]},"timestamp":null)");
    EXPECT_EQ(line.windowStart, "unknown");
    EXPECT_EQ(line.windowEnd, "unknown");
    EXPECT_EQ(line.timestamp, "unknown");
    for (const char *window : {"\"start\"", "[\"start\"]", "null", "{}"})
        EXPECT_EQ(parsed(std::string(",\"window\":") + window).windowStart, "unknown") << window;
}

TEST(WeeklyKPIReaderTest, oneWordOfTheWindowStandsWithoutTheOther)
{
    const WeeklyKPILine line = parsed(R"(,"window":{"end":"Sunday"})");
    EXPECT_EQ(line.windowStart, "unknown");
    EXPECT_EQ(line.windowEnd, "Sunday");
}

TEST(WeeklyKPIReaderTest, emptyWordsStayEmpty)
{
    EXPECT_EQ(parsed(R"(,"timestamp":"")").timestamp, "");
}

TEST(WeeklyKPIReaderTest, optionalFiguresOfAnotherTypeAreAbsent)
{
    const WeeklyKPILine line = parsed(R"(,"total_tokens":"5","merged_prs":1.5)");
    EXPECT_EQ(line.totalTokens, std::nullopt);
    EXPECT_EQ(line.mergedPRs, std::nullopt);
    EXPECT_EQ(line.medianTokensPerSession, 1);
}

TEST(WeeklyKPIReaderTest, theLastOfTwoEqualKeysCounts)
{
    EXPECT_EQ(medianIn(lineOf(1, R"(,"median_tokens_per_session":7)")), 7);
    EXPECT_EQ(medianIn(lineOf(1, R"(,"median_tokens_per_session":"x")")), std::nullopt);
    EXPECT_EQ(parsed(R"(,"window":{"start":"a"},"window":{"end":"b"})").windowStart, "unknown");
}

TEST(WeeklyKPIReaderTest, whiteSpaceAroundALineIsNothing)
{
    EXPECT_EQ(medianIn("  \t" + lineOf(1) + " \u00A0\n   \n\n"), 1);
    EXPECT_EQ(medianIn(lineOf(1) + "\r\n" + lineOf(2) + "\r\n"), 2);
}

TEST(WeeklyKPIReaderTest, aTextWithoutALineGivesNothing)
{
    for (const char *text : {"", "\n", " \n\t\n", "\r\n\r\n"})
        EXPECT_EQ(medianIn(text), std::nullopt);
}

TEST(WeeklyKPIReaderTest, theLogLiesUnderTheHomeFolder)
{
    EXPECT_EQ(WeeklyKPIReader::defaultPath("/home/someone"),
              "/home/someone/Library/Logs/token-kpi/weekly.jsonl");
    EXPECT_EQ(WeeklyKPIReader::defaultPath("/"), "//Library/Logs/token-kpi/weekly.jsonl");
}

} // namespace Loadwick
