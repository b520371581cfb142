#include "history/RecordedCategoryName.h"

#include <string>

#include <gtest/gtest.h>

namespace Loadwick {

using RecordedCategoryName::looksLikePath;
using RecordedCategoryName::storable;

namespace {

const std::string withheld(RecordedCategoryName::withheld);

std::string repeated(std::string_view character, int count)
{
    std::string text;
    for (int index = 0; index < count; ++index)
        text += character;
    return text;
}

} // namespace

TEST(RecordedCategoryNameTest, wordsTheReplacement)
{
    EXPECT_EQ(withheld, "Other (name withheld)");
    EXPECT_EQ(storable(withheld), withheld);
}

TEST(RecordedCategoryNameTest, keepsTwoPlainWordsTrimmed)
{
    EXPECT_EQ(storable("System prompt"), "System prompt");
    EXPECT_EQ(storable(" \t System prompt \r\n"), "System prompt");
    EXPECT_EQ(storable("\xC2\xA0Memory\xE2\x80\xA8"), "Memory");
}

TEST(RecordedCategoryNameTest, withholdsAnAbsolutePathWithSpacesAroundIt)
{
    EXPECT_EQ(storable("  /home/someone/notes  "), withheld);
    EXPECT_EQ(storable("C:\\notes"), withheld);
}

TEST(RecordedCategoryNameTest, withholdsABareFileNameWithAnExtension)
{
    EXPECT_EQ(storable("CLAUDE.md"), withheld);
    EXPECT_EQ(storable("Memory from notes.txt and more"), withheld);
}

TEST(RecordedCategoryNameTest, withholdsAnEmptyOrAllBlankName)
{
    EXPECT_EQ(storable(""), withheld);
    EXPECT_EQ(storable(" \n\t "), withheld);
}

TEST(RecordedCategoryNameTest, withholdsANameThatContainsATilde)
{
    EXPECT_EQ(storable("home ~ folder"), withheld);
    EXPECT_EQ(storable("~"), withheld);
}

TEST(RecordedCategoryNameTest, keepsExactlyEightyCharactersAndWithholdsEightyOne)
{
    EXPECT_EQ(storable(std::string(80, 'a')), std::string(80, 'a'));
    EXPECT_EQ(storable(std::string(81, 'a')), withheld);
    EXPECT_EQ(storable(" " + std::string(80, 'a') + " "), std::string(80, 'a'));
}

TEST(RecordedCategoryNameTest, countsCharactersAsPeopleSeeThem)
{
    const std::string family = "👩‍👩‍👧‍👦";
    EXPECT_EQ(storable(repeated(family, 80)), repeated(family, 80));
    EXPECT_EQ(storable(repeated(family, 81)), withheld);
    EXPECT_EQ(storable(repeated("e\xCC\x81", 80)), repeated("e\xCC\x81", 80));
    EXPECT_EQ(storable(repeated("日", 81)), withheld);
}

TEST(RecordedCategoryNameTest, examinesTheLastDotOfAWordOnly)
{
    EXPECT_TRUE(looksLikePath("a.b.c"));
    EXPECT_TRUE(looksLikePath("a..b"));
    EXPECT_TRUE(looksLikePath(".git.config"));
    EXPECT_FALSE(looksLikePath("a.md."));
    EXPECT_FALSE(looksLikePath("a.md,x.-"));
}

TEST(RecordedCategoryNameTest, letsADotAtEitherEndOfAWordPass)
{
    EXPECT_FALSE(looksLikePath(".gitignore"));
    EXPECT_FALSE(looksLikePath("Tools etc."));
    EXPECT_FALSE(looksLikePath("."));
    EXPECT_FALSE(looksLikePath("a . b"));
    EXPECT_FALSE(looksLikePath(""));
}

TEST(RecordedCategoryNameTest, asksForLettersOrDigitsBehindTheDot)
{
    EXPECT_TRUE(looksLikePath("version 2.1"));
    EXPECT_TRUE(looksLikePath("notes.averylongextension"));
    EXPECT_TRUE(looksLikePath("заметки.текст"));
    EXPECT_TRUE(looksLikePath("menu.cafe\xCC\x81"));
    EXPECT_FALSE(looksLikePath("(notes.md)"));
    EXPECT_FALSE(looksLikePath("notes.md,"));
    EXPECT_FALSE(looksLikePath("a.b-c"));
    EXPECT_FALSE(looksLikePath("a.\xFF"));
}

TEST(RecordedCategoryNameTest, splitsWordsAtBlanksAndSkipsEmptyOnes)
{
    EXPECT_TRUE(looksLikePath("  read   notes.md  "));
    EXPECT_TRUE(looksLikePath("notes.md last"));
    EXPECT_FALSE(looksLikePath("notes .md"));
    EXPECT_FALSE(looksLikePath("notes. md"));
    EXPECT_FALSE(looksLikePath("notes.md\tlast"));
}

} // namespace Loadwick
