#include "report/InstructionImports.h"

#include <string>

#include <gtest/gtest.h>

namespace Loadwick {

namespace {

using Tokens = std::vector<std::string_view>;

Tokens inLine(std::string_view line)
{
    return InstructionImports::tokensInLine(line);
}

Tokens in(std::string_view text)
{
    return InstructionImports::tokensIn(text);
}

} // namespace

TEST(InstructionImportsTest, findsWhatFollowsAnAtSign)
{
    EXPECT_EQ(inLine("@docs/style.md"), (Tokens{"docs/style.md"}));
    EXPECT_EQ(inLine("See @a.md and\t@../b.md"), (Tokens{"a.md", "../b.md"}));
    EXPECT_EQ(inLine("- @~/notes.md @/etc/x"), (Tokens{"~/notes.md", "/etc/x"}));
    EXPECT_EQ(inLine(""), Tokens{});
    EXPECT_EQ(inLine("no import here"), Tokens{});
}

TEST(InstructionImportsTest, ignoresAnAddressInsideAWord)
{
    EXPECT_EQ(inLine("write to a@b.c or (@x)"), Tokens{});
    EXPECT_EQ(inLine("@a.md@b.md"), (Tokens{"a.md@b.md"}));
}

TEST(InstructionImportsTest, dropsTheFullStopAtTheEndOfASentence)
{
    EXPECT_EQ(inLine("Read @docs/style.md."), (Tokens{"docs/style.md"}));
}

TEST(InstructionImportsTest, dropsEveryClosingPunctuation)
{
    for (const char *closing :
         {".", ",", ";", ":", "!", "?", ")", "]", "}", "\"", "'", "`", ".)\"'`]}?!,;:."})
        EXPECT_EQ(inLine(std::string("@a.md") + closing), (Tokens{"a.md"})) << closing;
    for (const char *kept : {"(", "[", "{", "-", "*", ">", "…"}) {
        const std::string line = std::string("@a.md") + kept;
        EXPECT_EQ(inLine(line), (Tokens{std::string_view(line).substr(1)})) << kept;
    }
}

TEST(InstructionImportsTest, keepsPunctuationInsideAToken)
{
    EXPECT_EQ(inLine("@(a).md @..md"), (Tokens{"(a).md", "..md"}));
}

TEST(InstructionImportsTest, dropsAWebAddress)
{
    EXPECT_EQ(inLine("@https://example.org/a.md and @x://"), Tokens{});
    EXPECT_EQ(inLine("@a:/b.md"), (Tokens{"a:/b.md"}));
}

TEST(InstructionImportsTest, dropsASecondAtSign)
{
    EXPECT_EQ(inLine("@@a.md"), Tokens{});
    EXPECT_EQ(inLine("@a@b"), (Tokens{"a@b"}));
}

TEST(InstructionImportsTest, dropsATokenOfOnlyPunctuation)
{
    EXPECT_EQ(inLine("@ @. @?! @"), Tokens{});
}

TEST(InstructionImportsTest, endsATokenAtEveryUnicodeWhiteSpace)
{
    for (const char *space : {" ", "\t", "\v", "\f", "\r", "\u0085", "\u00A0", "\u2003", "\u2028",
                              "\u2029", "\u3000"}) {
        const std::string line = std::string("x") + space + "@a.md" + space + "b";
        EXPECT_EQ(inLine(line), (Tokens{"a.md"})) << space;
    }
    EXPECT_EQ(inLine("x\u200B@a.md"), Tokens{}) << "a zero-width space is not white space";
}

TEST(InstructionImportsTest, doesNotTreatInlineCodeSpecially)
{
    EXPECT_EQ(inLine("`@a.md`"), Tokens{});
    EXPECT_EQ(inLine("` @a.md`"), (Tokens{"a.md"}));
}

TEST(InstructionImportsTest, keepsIllFormedBytesInsideAToken)
{
    EXPECT_EQ(inLine("@caf\xE9.md \xFF @b"), (Tokens{"caf\xE9.md", "b"}));
}

TEST(InstructionImportsTest, walksLinesInOrder)
{
    EXPECT_EQ(in("@a @b\n\nno\n@c"), (Tokens{"a", "b", "c"}));
    EXPECT_EQ(in(""), Tokens{});
    EXPECT_EQ(in("\n\n"), Tokens{});
}

TEST(InstructionImportsTest, endsALineOnlyAtALineFeed)
{
    EXPECT_EQ(in("@a\r\n@b\r\n"), (Tokens{"a", "b"}));
    EXPECT_EQ(in("x\r```\n@a\n```\n"), (Tokens{"a"})) << "a carriage return does not end a line";
}

TEST(InstructionImportsTest, ignoresOneByteOrderMark)
{
    EXPECT_EQ(in("\uFEFF@a\n@b"), (Tokens{"a", "b"}));
    EXPECT_EQ(in("\uFEFF```\n@a\n```\n@b"), (Tokens{"b"}));
    EXPECT_EQ(in("\uFEFF\uFEFF@a\n\uFEFF@b"), Tokens{});
    EXPECT_EQ(in("\uFEFF"), Tokens{});
}

TEST(InstructionImportsTest, ignoresImportsInsideAFence)
{
    EXPECT_EQ(in("@a\n```\n@b\n```\n@c"), (Tokens{"a", "c"}));
    EXPECT_EQ(in("~~~ text\n@b\n~~~~\n@c"), (Tokens{"c"}));
    EXPECT_EQ(in(" \t```cpp @x\n@b\n \t``` @y\n@c"), (Tokens{"c"}));
}

TEST(InstructionImportsTest, ignoresAnUnclosedFence)
{
    EXPECT_EQ(in("@a\n```\n@b\n"), (Tokens{"a", "b"}));
    EXPECT_EQ(in("```\n@a\n```\n@b\n``` @c\n@d"), (Tokens{"b", "c", "d"}));
}

TEST(InstructionImportsTest, treatsTheOtherMarkerInsideAFenceAsText)
{
    EXPECT_EQ(in("```\n~~~\n@a\n```\n@b\n~~~\n@c"), (Tokens{"b", "c"}));
    EXPECT_EQ(in("```\n~~~\n@a\n~~~\n@b"), (Tokens{"a", "b"})) << "the outer fence never closes";
}

TEST(InstructionImportsTest, requiresThreeCharactersForAFence)
{
    EXPECT_EQ(in("``\n@a\n``\n"), (Tokens{"a"}));
    EXPECT_EQ(in("`~`\n@a\n`~`"), (Tokens{"a"}));
    EXPECT_EQ(in("- ```\n@a\n- ```"), (Tokens{"a"}));
    EXPECT_EQ(in("\u00A0```\n@a\n\u00A0```"), (Tokens{"a"})) << "only spaces and tabs are trimmed";
}

} // namespace Loadwick
