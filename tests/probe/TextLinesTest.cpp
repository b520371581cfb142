#include "probe/TextLines.h"

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

} // namespace

TEST(TextLinesTest, endsLinesAtEveryLineBreak)
{
    EXPECT_EQ(linesOf("a\nb\vc\fd\re\u0085f\u2028g\u2029h"),
              (Lines{"a", "b", "c", "d", "e", "f", "g", "h"}));
}

TEST(TextLinesTest, takesCarriageReturnAndLineFeedForOneBreak)
{
    EXPECT_EQ(linesOf("a\r\nb\n\rc"), (Lines{"a", "b", "", "c"}));
}

TEST(TextLinesTest, givesEmptyLinesBetweenBreaks)
{
    EXPECT_EQ(linesOf("\n\na"), (Lines{"", "", "a"}));
}

TEST(TextLinesTest, givesNoLineBehindTheLastBreak)
{
    EXPECT_EQ(linesOf("a\n"), (Lines{"a"}));
    EXPECT_EQ(linesOf(""), Lines{});
}

TEST(TextLinesTest, leavesNeighboursOfTheBreaksAlone)
{
    const std::string_view text = "a\u0084b\u0086c\u2027d\u202Ae\u00A0f\tg\x1Fh";
    EXPECT_EQ(linesOf(text), (Lines{text}));
}

TEST(TextLinesTest, leavesHalfABreakAtTheEndAlone)
{
    EXPECT_EQ(linesOf("a\xE2\x80"), (Lines{"a\xE2\x80"}));
    EXPECT_EQ(linesOf("a\xE2"), (Lines{"a\xE2"}));
    EXPECT_EQ(linesOf("a\xC2"), (Lines{"a\xC2"}));
}

} // namespace Loadwick
