#include "json/JsonString.h"

#include <gtest/gtest.h>

namespace Loadwick {

using namespace std::string_literals;

namespace {

/// The text of a literal given without its quotation marks.
std::optional<std::string> textOf(const std::string &literal)
{
    if (jsonStringEnd(literal + "\" tail", 0) != literal.size())
        return std::nullopt;
    return jsonStringText(literal);
}

} // namespace

TEST(JsonStringTest, findsTheClosingQuotationMark)
{
    EXPECT_EQ(jsonStringEnd(R"("abc",1)", 1), 4U);
    EXPECT_EQ(jsonStringEnd(R"("")", 1), 1U);
    EXPECT_EQ(jsonStringEnd(R"("a\"b")", 1), 5U);
    EXPECT_EQ(jsonStringEnd(R"("a\\")", 1), 4U);
}

TEST(JsonStringTest, isNothingWithoutAnEnd)
{
    EXPECT_FALSE(jsonStringEnd("", 0));
    EXPECT_FALSE(jsonStringEnd("abc", 0));
    EXPECT_FALSE(jsonStringEnd("abc\\", 0));
    EXPECT_FALSE(jsonStringEnd("abc\\\"", 0));
}

TEST(JsonStringTest, readsEveryShortEscape)
{
    EXPECT_EQ(textOf(R"(\"\\\/\b\f\n\r\t)"), "\"\\/\b\f\n\r\t");
}

TEST(JsonStringTest, readsCodeUnits)
{
    EXPECT_EQ(textOf(R"(\u0041\u00e9\u20AC)"), "Aé€");
    EXPECT_EQ(textOf(R"(\u0000)"), "\0"s);
    EXPECT_EQ(textOf(R"(\u007f\u0080\u07ff\u0800\uffff)"), "\u007f\u0080\u07ff\u0800\uffff");
}

TEST(JsonStringTest, joinsSurrogatePairs)
{
    EXPECT_EQ(textOf(R"(x\ud83d\ude00y)"), "x😀y");
    EXPECT_EQ(textOf(R"(\uD800\uDC00\uDBFF\uDFFF)"), "\U00010000\U0010ffff");
}

TEST(JsonStringTest, refusesHalfASurrogatePair)
{
    for (const char *literal : {R"(\ud83d)", R"(\ude00)", R"(\ud83dx)", R"(\ud83d\n)",
                                R"(\ud83d\u0041)", R"(\ude00\ud83d)", R"(\ud83d\ud83d)"})
        EXPECT_FALSE(textOf(literal)) << literal;
}

TEST(JsonStringTest, refusesUnknownEscapes)
{
    for (const char *literal : {R"(\x)", R"(\u12)", R"(\u12g4)", R"(\u-123)", R"(\U0041)",
                                R"(\u+041)", R"(\u 041)", R"(\')"})
        EXPECT_FALSE(textOf(literal)) << literal;
}

TEST(JsonStringTest, refusesControlCharacters)
{
    for (char byte = 0; byte < 0x20; ++byte)
        EXPECT_FALSE(textOf("a"s + byte)) << static_cast<int>(byte);
    EXPECT_EQ(textOf("\x7F"), "\x7F");
}

TEST(JsonStringTest, keepsSeparatorsOfLinesAndParagraphs)
{
    EXPECT_EQ(textOf("a\u2028b\u0085c"), "a\u2028b\u0085c");
}

TEST(JsonStringTest, needsNoMoreMemoryThanTheLiteral)
{
    const std::string literal(1 << 20, 'x');
    EXPECT_LE(jsonStringText(literal).capacity(), literal.size());
    EXPECT_LE(jsonStringText("\\n" + literal).capacity(), literal.size() + 2);
}

} // namespace Loadwick
