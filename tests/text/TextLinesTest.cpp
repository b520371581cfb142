#include "text/TextLines.h"

#include "support/GuardedText.h"

#include <algorithm>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace Loadwick {

namespace {

using Lines = std::vector<std::string_view>;

Lines linesOf(std::string_view text)
{
    Lines lines;
    while (const auto line = takeLine(text))
        lines.push_back(*line);
    return lines;
}

Lines linesFromTheEndOf(std::string_view text)
{
    Lines lines;
    while (const auto line = takeLastLine(text))
        lines.push_back(*line);
    return lines;
}

} // namespace

TEST(TextLinesTest, endsLinesAtEveryLineBreak)
{
    EXPECT_EQ(linesOf("a\nb\vc\fd\re\u0085f\u2028g\u2029h"),
              (Lines{"a", "b", "c", "d", "e", "f", "g", "h"}));
}

TEST(TextLinesTest, countsCarriageReturnAndLineFeedAsOneBreak)
{
    EXPECT_EQ(linesOf("a\r\nb\n\rc"), (Lines{"a", "b", "", "c"}));
}

TEST(TextLinesTest, returnsEmptyLinesBetweenBreaks)
{
    EXPECT_EQ(linesOf("\n\na"), (Lines{"", "", "a"}));
}

TEST(TextLinesTest, returnsNoLineAfterTheLastBreak)
{
    EXPECT_EQ(linesOf("a\n"), (Lines{"a"}));
    EXPECT_EQ(linesOf(""), Lines{});
}

TEST(TextLinesTest, ignoresCodePointsNextToTheBreaks)
{
    const std::string_view text = "a\u0084b\u0086c\u2027d\u202Ae\u00A0f\tg\x1Fh";
    EXPECT_EQ(linesOf(text), (Lines{text}));
}

TEST(TextLinesTest, ignoresATruncatedBreakAtTheEnd)
{
    EXPECT_EQ(linesOf("a\xE2\x80"), (Lines{"a\xE2\x80"}));
    EXPECT_EQ(linesOf("a\xE2"), (Lines{"a\xE2"}));
    EXPECT_EQ(linesOf("a\xC2"), (Lines{"a\xC2"}));
}

TEST(TextLinesTest, findsABreakAtEveryIndexAndNoLookalike)
{
    for (std::size_t length = 0; length < 40; ++length)
        for (const std::string_view other : {"", "\t", "\x1F", "\x7F", "\u00A0", "\xFF", "\x8A"})
            for (const std::string_view lineBreak : {"\n", "\r\n", "\v", "\u0085", "\u2029"})
                for (const char last : {'~', '!'}) {
                    const std::string line = std::string(length, ' ') + std::string(other) + last;
                    const std::string text = line + std::string(lineBreak) + line;
                    EXPECT_EQ(linesOf(text), (Lines{line, line})) << text;
                }
}

TEST(TextLinesTest, readsNothingBehindTheText)
{
    for (std::size_t length = 1; length < 40; ++length)
        for (const std::string_view end : {"a", "\n", "\r", "\xC2", "\xE2", "\xE2\x80"}) {
            const GuardedText guarded(std::string(length, 'a') + std::string(end));
            EXPECT_EQ(linesOf(guarded.view()).size(), 1U) << length << ' ' << end;
        }
}

TEST(TextLinesTest, returnsTheSameLinesFromTheEnd)
{
    for (const std::string_view text :
         {"", "a", "\n", "a\n", "\na", "\n\na\n\n", "a\r\nb\n\rc\r\n", "\r\n", "\r", "\r\r\n",
          "a\nb\vc\fd\re\u0085f\u2028g\u2029h", "a\u2028", "a\u0084b\u0086c\u2027d\u202A",
          "a\xE2\x80", "\x85", "\x80\xA8", "\xC2", "a\xE2\x80\n\xA8"}) {
        Lines lines = linesFromTheEndOf(text);
        std::reverse(lines.begin(), lines.end());
        EXPECT_EQ(lines, linesOf(text)) << text;
    }
}

} // namespace Loadwick
