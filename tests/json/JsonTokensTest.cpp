#include "json/JsonTokens.h"

#include "support/GuardedText.h"

#include <gtest/gtest.h>

namespace Loadwick {

using namespace std::string_literals;

namespace {

/// The text of a string given without its quotation marks.
std::optional<std::string> textOf(const std::string &literal)
{
    const std::string document = '"' + literal + "\" tail";
    JsonTokens tokens(document);
    if (tokens.takeString() != literal)
        return std::nullopt;
    EXPECT_TRUE(tokens.takeWord(" tail"));
    return jsonStringText(literal);
}

bool hasString(std::string_view document)
{
    return JsonTokens(document).takeString().has_value();
}

} // namespace

TEST(JsonTokensTest, takesAStringToItsClosingQuotationMark)
{
    EXPECT_EQ(JsonTokens(R"("abc",1)").takeString(), "abc");
    EXPECT_EQ(JsonTokens(R"("")").takeString(), "");
    EXPECT_EQ(JsonTokens(R"("a\"b")").takeString(), R"(a\"b)");
    EXPECT_EQ(JsonTokens(R"("a\\")").takeString(), R"(a\\)");
}

TEST(JsonTokensTest, rejectsAStringWithoutItsQuotationMarks)
{
    for (const char *text : {"", "abc\"", "\"", "\"abc", "\"abc\\", "\"abc\\\""})
        EXPECT_FALSE(hasString(text)) << text;
}

TEST(JsonTokensTest, readsNothingBehindTheText)
{
    for (const char *text : {"\"", "\"abc", "\"abc\\", "\"abc\\u", "\"abc\\u12", "\"abc\\ud83d\\"})
        EXPECT_FALSE(hasString(GuardedText(text).view())) << text;
}

TEST(JsonTokensTest, takesAWholeWordOrNothing)
{
    JsonTokens tokens("true");
    EXPECT_FALSE(tokens.takeWord("tree"));
    EXPECT_FALSE(tokens.takeWord("trueness"));
    EXPECT_TRUE(tokens.takeWord("true"));
}

TEST(JsonTokensTest, readsEveryShortEscape)
{
    EXPECT_EQ(textOf(R"(\"\\\/\b\f\n\r\t)"), "\"\\/\b\f\n\r\t");
}

TEST(JsonTokensTest, readsCodeUnits)
{
    EXPECT_EQ(textOf(R"(\u0041\u00e9\u20AC)"), "Aé€");
    EXPECT_EQ(textOf(R"(\u0000)"), "\0"s);
    EXPECT_EQ(textOf(R"(\ud7ff\ue000)"), "\uD7FF\uE000");
    EXPECT_EQ(textOf(R"(\u007f\u0080\u07ff\u0800\uffff)"), "\u007f\u0080\u07ff\u0800\uffff");
}

TEST(JsonTokensTest, joinsSurrogatePairs)
{
    EXPECT_EQ(textOf(R"(x\ud83d\ude00y)"), "x😀y");
    EXPECT_EQ(textOf(R"(\uD800\uDC00\uDBFF\uDFFF)"), "\U00010000\U0010ffff");
}

TEST(JsonTokensTest, replacesHalfASurrogatePair)
{
    EXPECT_EQ(textOf(R"(\ud83d)"), "\uFFFD");
    EXPECT_EQ(textOf(R"(\ude00)"), "\uFFFD");
    EXPECT_EQ(textOf(R"(\ud83dx)"), "\uFFFDx");
    EXPECT_EQ(textOf(R"(\ud83d\n)"), "\uFFFD\n");
    EXPECT_EQ(textOf(R"(\uDBFF\u0041)"), "\uFFFDA");
    EXPECT_EQ(textOf(R"(\ude00\ud83d)"), "\uFFFD\uFFFD");
    EXPECT_EQ(textOf(R"(\ud83d\ud83d\ude00)"), "\uFFFD😀");
}

TEST(JsonTokensTest, rejectsUnknownEscapes)
{
    for (const char *literal : {R"(\ud83d\u12)", R"(\x)", R"(\u12)", R"(\u12g4)", R"(\u-123)",
                                R"(\U0041)", R"(\u+041)", R"(\u 041)", R"(\')"})
        EXPECT_FALSE(textOf(literal)) << literal;
}

TEST(JsonTokensTest, rejectsControlCharacters)
{
    for (char byte = 0; byte < 0x20; ++byte)
        EXPECT_FALSE(textOf("a"s + byte)) << static_cast<int>(byte);
    EXPECT_EQ(textOf("\x7F"), "\x7F");
}

TEST(JsonTokensTest, keepsLineAndParagraphSeparators)
{
    EXPECT_EQ(textOf("a\u2028b\u0085c"), "a\u2028b\u0085c");
}

TEST(JsonTokensTest, needsNoMoreMemoryThanTheLiteral)
{
    const std::string literal(1 << 20, 'x');
    EXPECT_LE(jsonStringText(literal).capacity(), literal.size());
    EXPECT_LE(jsonStringText("\\n" + literal).capacity(), literal.size() + 2);
}

} // namespace Loadwick
