#include "probe/SlabParser.h"

#include <string>

#include <gtest/gtest.h>

namespace Loadwick {

namespace {

using Slabs = std::vector<SelfReportedSlab>;

SelfReportedSlab slab(std::string name, std::int64_t tokens)
{
    return {.name = std::move(name), .tokens = tokens};
}

} // namespace

TEST(SlabParserTest, readsNameAndCount)
{
    EXPECT_EQ(SlabParser::parseLine("SLAB system prompt TOKENS 3,200"),
              slab("system prompt", 3200));
}

TEST(SlabParserTest, acceptsGroupedDigits)
{
    EXPECT_EQ(SlabParser::parseLine("SLAB a TOKENS 42,318"), slab("a", 42318));
    EXPECT_EQ(SlabParser::parseLine("SLAB a TOKENS 42_318"), slab("a", 42318));
    EXPECT_EQ(SlabParser::parseLine("SLAB a TOKENS ,_7,"), slab("a", 7));
    EXPECT_FALSE(SlabParser::parseLine("SLAB a TOKENS ,_,"));
}

TEST(SlabParserTest, acceptsBulletsQuotesAndBackticksAroundTheLine)
{
    for (const char *line :
         {"* SLAB a TOKENS 1", "> SLAB a TOKENS 1", "- SLAB a TOKENS 1", "`SLAB a TOKENS 1`",
          "  \t- > ** `SLAB a TOKENS 1` **\t ", "```SLAB a TOKENS 1```", "**SLAB a TOKENS 1**"})
        EXPECT_EQ(SlabParser::parseLine(line), slab("a", 1)) << line;
}

TEST(SlabParserTest, rejectsBoldMarkersAfterTheKeyword)
{
    EXPECT_FALSE(SlabParser::parseLine("- **SLAB** system prompt TOKENS 5"));
}

TEST(SlabParserTest, rejectsOtherDecoration)
{
    EXPECT_FALSE(SlabParser::parseLine("\u2022 SLAB a TOKENS 1"));
    EXPECT_FALSE(SlabParser::parseLine("1. SLAB a TOKENS 1"));
    EXPECT_FALSE(SlabParser::parseLine("SLAB: a TOKENS 1"));
    EXPECT_FALSE(SlabParser::parseLine("- \tSLAB a TOKENS 1"));
}

TEST(SlabParserTest, ignoresTheLetterCaseOfTheKeywords)
{
    EXPECT_EQ(SlabParser::parseLine("slab Custom Agents tokens 40"), slab("Custom Agents", 40));
    EXPECT_EQ(SlabParser::parseLine("Slab x ToKeNs 4"), slab("x", 4));
    EXPECT_EQ(SlabParser::parseLine("SLAB x TO\u212AENS 4"), slab("x", 4));
}

TEST(SlabParserTest, acceptsLettersThatBecomeAsciiInLowerCase)
{
    EXPECT_EQ(SlabParser::parseLine("SLAB a TO\u212AENS 3"),
              (SelfReportedSlab{.name = "a", .tokens = 3}));
    EXPECT_FALSE(SlabParser::parseLine("SLAB a TO\u212AEN 3"));
    EXPECT_FALSE(SlabParser::parseLine("SL\u00C4B a TOKENS 3"));
    EXPECT_FALSE(SlabParser::parseLine("SLA@ a TOKENS 3"));
}

TEST(SlabParserTest, requiresAName)
{
    EXPECT_FALSE(SlabParser::parseLine("SLAB TOKENS 12"));
    EXPECT_FALSE(SlabParser::parseLine("SLAB TOKENS"));
    EXPECT_FALSE(SlabParser::parseLine("SLAB"));
    EXPECT_FALSE(SlabParser::parseLine(""));
}

TEST(SlabParserTest, requiresAKeywordBeforeTheCount)
{
    EXPECT_FALSE(SlabParser::parseLine("SLAB memory files 12"));
    EXPECT_FALSE(SlabParser::parseLine("SLAB memory files TOKEN 12"));
    EXPECT_FALSE(SlabParser::parseLine("SLABS memory TOKENS 12"));
    EXPECT_FALSE(SlabParser::parseLine("NOTE memory TOKENS 12"));
    EXPECT_FALSE(SlabParser::parseLine("SLAB memory NUMBER 12"));
}

TEST(SlabParserTest, requiresACountAfterTheKeyword)
{
    EXPECT_FALSE(SlabParser::parseLine("SLAB memory files TOKENS"));
    EXPECT_FALSE(SlabParser::parseLine("SLAB a TOKENS 7 TOKENS"));
}

TEST(SlabParserTest, rejectsCountsWithOtherCharactersThanDigits)
{
    for (const char *count : {"-5", "+5", "1.5k", "1.5", "5k", "five", "0x5", "~5", "5:", "5/",
                              "\u00BD", "\u0663\u0664", "\uFF15", "5\u00B2"})
        EXPECT_FALSE(SlabParser::parseLine(std::string("SLAB a TOKENS ") + count)) << count;
}

TEST(SlabParserTest, rejectsCountsBeyondSixtyFourBits)
{
    EXPECT_EQ(SlabParser::parseLine("SLAB a TOKENS 9223372036854775807"),
              slab("a", 9'223'372'036'854'775'807));
    EXPECT_FALSE(SlabParser::parseLine("SLAB a TOKENS 9223372036854775808"));
    EXPECT_FALSE(SlabParser::parseLine("SLAB a TOKENS " + std::string(20, '9')));
    EXPECT_EQ(SlabParser::parseLine("SLAB a TOKENS 000000000000000000000000012"), slab("a", 12));
}

TEST(SlabParserTest, acceptsACountOfZero)
{
    EXPECT_EQ(SlabParser::parseLine("SLAB a TOKENS 0"), slab("a", 0));
}

TEST(SlabParserTest, ignoresWordsAfterTheCount)
{
    EXPECT_EQ(SlabParser::parseLine("SLAB a TOKENS 12 (a rough guess)"), slab("a", 12));
}

TEST(SlabParserTest, usesTheLastKeyword)
{
    EXPECT_EQ(SlabParser::parseLine("SLAB a TOKENS b TOKENS 7"), slab("a TOKENS b", 7));
    EXPECT_EQ(SlabParser::parseLine("SLAB system tokens TOKENS 120"), slab("system tokens", 120));
    EXPECT_EQ(SlabParser::parseLine("SLAB TOKENS TOKENS 7"), slab("TOKENS", 7));
    EXPECT_FALSE(SlabParser::parseLine("SLAB a TOKENS 12 not tokens at all"));
}

TEST(SlabParserTest, joinsWordsOfTheNameWithSingleSpaces)
{
    EXPECT_EQ(SlabParser::parseLine("SLAB   memory    files   TOKENS   9"),
              slab("memory files", 9));
    EXPECT_EQ(SlabParser::parseLine("SLAB a\tb TOKENS 9"), slab("a\tb", 9));
    EXPECT_EQ(SlabParser::parseLine("SLAB \"été\" `x` TOKENS 9"), slab("\"été\" `x`", 9));
}

TEST(SlabParserTest, doesNotSeparateWordsAtTabs)
{
    EXPECT_FALSE(SlabParser::parseLine("SLAB\tmemory files TOKENS 9"));
    EXPECT_FALSE(SlabParser::parseLine("SLAB memory files\tTOKENS 9"));
}

TEST(SlabParserTest, skipsProseFencesAndBlankLines)
{
    const std::string text = "Here is the breakdown:\n\n```\nSLAB a TOKENS 1\n   \nSLAB b TOKENS "
                             "2\n```\nThat is all, SLAB wise.\n";
    EXPECT_EQ(SlabParser::parse(text), (Slabs{slab("a", 1), slab("b", 2)}));
}

TEST(SlabParserTest, returnsNothingForAnAnswerWithoutSlabs)
{
    EXPECT_TRUE(SlabParser::parse("I cannot see that.").empty());
    EXPECT_TRUE(SlabParser::parse("").empty());
}

TEST(SlabParserTest, acceptsEveryKindOfLineEnding)
{
    const Slabs expected{slab("a", 1), slab("b", 2)};
    for (const char *ending : {"\n", "\r\n", "\r", "\v", "\f", "\u0085", "\u2028", "\u2029"})
        EXPECT_EQ(
            SlabParser::parse(std::string("SLAB a TOKENS 1") + ending + "SLAB b TOKENS 2" + ending),
            expected);
}

TEST(SlabParserTest, keepsOrderAndRepeatedNames)
{
    EXPECT_EQ(
        SlabParser::parse("SLAB b TOKENS 1\nSLAB a TOKENS 2\nSLAB b TOKENS 3\nSLAB b TOKENS 3"),
        (Slabs{slab("b", 1), slab("a", 2), slab("b", 3), slab("b", 3)}));
}

TEST(SlabParserTest, countsTheLinesThatAreSlabsAndThoseThatSaySomethingElse)
{
    const std::string answer = "Here it is:\n```text\nSLAB a TOKENS 1\nSLAB b TOKENS 3200 tokens\n"
                               "SLAB c TOKENS ~3200\n| d | 4 |\n\n \t\n- SLAB e TOKENS 5\r\n```\n";
    const SlabParser::Answer read = SlabParser::read(answer);
    EXPECT_EQ(read.slabs, (Slabs{slab("a", 1), slab("e", 5)}));
    EXPECT_EQ(read.lines, (AnswerLines{.read = 2, .unread = 4}));
    EXPECT_EQ(SlabParser::read("").lines, AnswerLines());
}

TEST(SlabParserTest, countsNoBlankLineAndNoFenceAsUnread)
{
    for (const char *line :
         {"", " ", "\t", "\u00A0", "```", "  ```", "````", "```text", "~~~", "~~~ a"})
        EXPECT_EQ(SlabParser::read(line).lines, AnswerLines()) << line;
    for (const char *line :
         {"``", "~~", "---", "*", "```SLAB a TOKENS none```", "SLAB a TOKENS -1"})
        EXPECT_EQ(SlabParser::read(line).lines, (AnswerLines{.unread = 1})) << line;
}

TEST(SlabParserTest, readsALineOfManyMegabytes)
{
    std::string line = "SLAB";
    for (int word = 0; word < 500'000; ++word)
        line += " tokenss";
    const auto read = SlabParser::parseLine(line + " TOKENS 3");
    ASSERT_TRUE(read);
    EXPECT_EQ(read->name.size(), line.size() - 5);
}

} // namespace Loadwick
