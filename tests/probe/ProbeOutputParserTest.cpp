#include "probe/ProbeOutputParser.h"

#include <functional>

#include <gtest/gtest.h>

#include "probe/ProbeError.h"

namespace Loadwick {

namespace {

ProbeError errorOf(std::string_view standardOutput, std::string_view standardError,
                   std::int32_t exitCode)
{
    try {
        (void)ProbeOutputParser::parse(standardOutput, standardError, exitCode);
    } catch (const ProbeError &error) {
        return error;
    }
    ADD_FAILURE() << "nothing was thrown";
    return ProbeError::timedOut();
}

ProbeOutput output(std::string_view standardOutput)
{
    return ProbeOutputParser::parse(standardOutput, "", 0);
}

} // namespace

TEST(ProbeOutputParserTest, readsAResultRecord)
{
    const auto read = output(R"({"type":"result","num_turns":1,"result":"SLAB a TOKENS 1\nz",
        "is_error":false,"session_id":"abc","usage":{"input_tokens":3,"output_tokens":9}})"
                             "\n");
    EXPECT_EQ(read.sessionID, "abc");
    EXPECT_EQ(read.result, "SLAB a TOKENS 1\nz");
    EXPECT_EQ(read.usage, (ProbeUsage{3, 0, 0, 9}));
}

TEST(ProbeOutputParserTest, acceptsARecordOfOnlyASessionIdentifier)
{
    EXPECT_EQ(output(R"({"session_id":"s"})"),
              (ProbeOutput{.sessionID = "s", .result = "", .usage = std::nullopt}));
}

TEST(ProbeOutputParserTest, readsAUsageOfOnlyInputTokens)
{
    const auto read = output(R"({"session_id":"s","usage":{"input_tokens":3}})");
    EXPECT_EQ(read.usage, (ProbeUsage{3, 0, 0, 0}));
    EXPECT_EQ(read.usage->startupTotal(), 3);
}

TEST(ProbeOutputParserTest, rejectsAUsageOfOnlyOutputTokens)
{
    EXPECT_FALSE(output(R"({"session_id":"s","usage":{"output_tokens":3}})").usage);
}

TEST(ProbeOutputParserTest, rejectsAUsageThatIsNotAnObject)
{
    EXPECT_FALSE(output(R"({"session_id":"s","usage":[3]})").usage);
    EXPECT_FALSE(output(R"({"session_id":"s","usage":null})").usage);
}

TEST(ProbeOutputParserTest, readsAResultThatIsNotAStringAsEmpty)
{
    EXPECT_EQ(output(R"({"session_id":"s","result":{"a":1}})").result, "");
    EXPECT_EQ(output(R"({"session_id":"s","result":null})").result, "");
}

TEST(ProbeOutputParserTest, acceptsARecordWithAnyExitCode)
{
    const auto read = ProbeOutputParser::parse(R"({"session_id":"s"})", "Invalid API key", 1);
    EXPECT_EQ(read.sessionID, "s");
}

TEST(ProbeOutputParserTest, lastDuplicateKeyWins)
{
    EXPECT_EQ(output(R"({"session_id":"a","session_id":"b"})").sessionID, "b");
}

TEST(ProbeOutputParserTest, ignoresAnErrorFlagThatIsNotABoolean)
{
    EXPECT_EQ(output(R"({"session_id":"s","is_error":"true"})").sessionID, "s");
    EXPECT_EQ(output(R"({"session_id":"s","is_error":1})").sessionID, "s");
    EXPECT_EQ(output(R"({"session_id":"s","is_error":false})").sessionID, "s");
}

TEST(ProbeOutputParserTest, reportsWhatTheSessionSaid)
{
    const std::string text = "Credit balance is too low " + std::string(1000, 'x');
    EXPECT_EQ(errorOf(R"({"is_error":true,"session_id":"s","result":")" + text + "\"}", "", 1),
              ProbeError::sessionFailed(text));
}

TEST(ProbeOutputParserTest, reportsAnErrorWithoutText)
{
    const auto expected = ProbeError::sessionFailed("The session reported is_error.");
    EXPECT_EQ(errorOf(R"({"is_error":true,"result":""})", "", 0), expected);
    EXPECT_EQ(errorOf(R"({"is_error":true})", "Invalid API key", 1), expected);
    EXPECT_EQ(errorOf(R"({"is_error":true,"result":7})", "", 1), expected);
}

TEST(ProbeOutputParserTest, reportsBlankErrorTextUnchanged)
{
    EXPECT_EQ(errorOf(R"({"is_error":true,"result":" "})", "", 0), ProbeError::sessionFailed(" "));
}

TEST(ProbeOutputParserTest, recognisesASignInFailureInTheResult)
{
    EXPECT_EQ(errorOf(R"({"is_error":true,"result":"Not logged in · Please run /login"})", "", 1),
              ProbeError::notAuthenticated());
}

TEST(ProbeOutputParserTest, recognisesASignInFailureOnStandardErrorInAnyLetterCase)
{
    EXPECT_EQ(errorOf("not json", "Invalid API key", 1), ProbeError::notAuthenticated());
    EXPECT_EQ(errorOf("", "OAUTH SESSION EXPIRED", 143), ProbeError::notAuthenticated());
}

TEST(ProbeOutputParserTest, recognisesASignInFailureOnStandardOutput)
{
    EXPECT_EQ(errorOf("Failed to authenticate. API Error: 401", "boom", 1),
              ProbeError::notAuthenticated());
}

TEST(ProbeOutputParserTest, ignoresSignInPhrasesAfterExitCodeZero)
{
    EXPECT_EQ(errorOf("not json", "Invalid API key", 0), ProbeError::unreadableOutput("not json"));
    EXPECT_EQ(errorOf(" ", "Invalid API key", 0), ProbeError::unreadableOutput("Invalid API key"));
}

TEST(ProbeOutputParserTest, findsNoPhraseAcrossTheTwoStreams)
{
    EXPECT_EQ(errorOf("key", "invalid api", 1), ProbeError::unreadableOutput("key"));
}

TEST(ProbeOutputParserTest, showsStandardErrorWhenStandardOutputIsBlank)
{
    EXPECT_EQ(errorOf("  \n", "boom", 1), ProbeError::unreadableOutput("boom"));
}

TEST(ProbeOutputParserTest, saysNoOutputWhenBothStreamsAreEmpty)
{
    EXPECT_EQ(errorOf("", "", 0), ProbeError::unreadableOutput("(no output)"));
    EXPECT_EQ(errorOf("", "", 1), ProbeError::unreadableOutput("(no output)"));
}

TEST(ProbeOutputParserTest, treatsAnArrayAsUnreadable)
{
    EXPECT_EQ(errorOf(R"([{"session_id":"s"}])", "", 0),
              ProbeError::unreadableOutput(R"([{"session_id":"s"}])"));
}

TEST(ProbeOutputParserTest, requiresASessionIdentifier)
{
    EXPECT_EQ(errorOf(" {\"result\":\"x\"}\n", "boom", 0),
              ProbeError::unreadableOutput(R"({"result":"x"})"));
    EXPECT_EQ(errorOf(R"({"session_id":""})", "", 0),
              ProbeError::unreadableOutput(R"({"session_id":""})"));
    EXPECT_EQ(errorOf(R"({"session_id":5})", "", 0),
              ProbeError::unreadableOutput(R"({"session_id":5})"));
}

TEST(ProbeOutputParserTest, truncatesUnreadableOutput)
{
    EXPECT_EQ(errorOf(std::string(501, 'x'), "", 0),
              ProbeError::unreadableOutput(std::string(500, 'x').append("…")));
}

TEST(ProbeOutputParserTest, recognisesFourComplaints)
{
    for (const char *text : {"Failed to authenticate", "x OAuth session expired y",
                             "please run /login", "INVALID API KEY", "invalid api \u212Aey"})
        EXPECT_TRUE(ProbeOutputParser::indicatesAuthenticationFailure(text)) << text;
    for (const char *text : {"", "invalid api  key", "please run login", "unauthenticated"})
        EXPECT_FALSE(ProbeOutputParser::indicatesAuthenticationFailure(text)) << text;
}

TEST(ProbeOutputParserTest, findsAComplaintAnywhereInALongText)
{
    const std::string complaint = "OAuth Session Expired";
    for (std::size_t before = 65536 - 200; before < 65536 + 100; ++before) {
        const std::string text = std::string(before, 'x') + complaint + std::string(70'000, 'y');
        ASSERT_TRUE(ProbeOutputParser::indicatesAuthenticationFailure(text)) << before;
    }
    EXPECT_TRUE(
        ProbeOutputParser::indicatesAuthenticationFailure(std::string(1 << 20, 'x') + complaint));
    EXPECT_FALSE(ProbeOutputParser::indicatesAuthenticationFailure(std::string(1 << 20, 'x')));
}

TEST(ProbeOutputParserTest, findsAComplaintAmongMultibyteLetters)
{
    std::string wide;
    for (int count = 0; count < 30'000; ++count)
        wide += "日";
    for (const char *shift : {"", "a", "ab"})
        EXPECT_TRUE(ProbeOutputParser::indicatesAuthenticationFailure(shift + wide +
                                                                      "please run /login" + wide));
}

} // namespace Loadwick
