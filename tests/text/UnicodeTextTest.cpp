#include "text/UnicodeText.h"

#include <new>

#include <gtest/gtest.h>

#include "support/UnicodeMemory.h"

namespace Loadwick {

TEST(UnicodeTextTest, distinguishesUtf8FromOtherBytes)
{
    EXPECT_TRUE(isUtf8(""));
    EXPECT_TRUE(isUtf8("plain, é, 日本, 👩‍👩‍👧‍👦"));
    EXPECT_FALSE(isUtf8("half \xE2\x82"));
    EXPECT_FALSE(isUtf8("overlong \xC0\xAF"));
    EXPECT_FALSE(isUtf8("surrogate \xED\xA0\x80"));
    EXPECT_FALSE(isUtf8("\xFF"));
}

TEST(UnicodeTextTest, rejectsIllFormedBytesAfterAsciiOfAnyLength)
{
    for (std::size_t length = 0; length < 40; ++length) {
        const std::string ascii(length, 'a');
        EXPECT_TRUE(isUtf8(ascii + "\xC3\xA9" + ascii)) << length;
        EXPECT_FALSE(isUtf8(ascii + "\x80" + ascii)) << length;
        EXPECT_FALSE(isUtf8(ascii + "\xA9" + ascii)) << length;
        EXPECT_FALSE(isUtf8(ascii + "\xC3")) << length;
    }
}

TEST(UnicodeTextTest, replacesEachIllFormedPart)
{
    EXPECT_EQ(repairedUtf8("a\xFFz"), "a\xEF\xBF\xBDz");
    EXPECT_EQ(repairedUtf8("a\xE2\x82z"), "a\xEF\xBF\xBDz");
    EXPECT_EQ(repairedUtf8("fine é"), "fine é");
}

TEST(UnicodeTextTest, trimsEveryKindOfWhiteSpace)
{
    EXPECT_EQ(trimmed(" \t\r\n\xC2\xA0 a b \xE2\x80\xA8\xE3\x80\x80\xC2\x85"), "a b");
    EXPECT_EQ(trimmed(" \n "), "");
    EXPECT_EQ(trimmed(""), "");
    EXPECT_EQ(trimmed("\xFF"), "\xFF");
    EXPECT_EQ(trimmed(" é "), "é");
}

TEST(UnicodeTextTest, skipsOneByteOrderMarkAtTheBeginning)
{
    EXPECT_EQ(withoutByteOrderMark("\uFEFF\uFEFFa\uFEFF"), "\uFEFFa\uFEFF");
    for (const std::string_view text : {"", "a\uFEFF", " \uFEFF", "\xEF\xBB"})
        EXPECT_EQ(withoutByteOrderMark(text), text);
}

TEST(UnicodeTextTest, trimsOnlySpacesAndTabs)
{
    EXPECT_EQ(trimmedSpaces(" \ta\n\t "), "a\n");
    EXPECT_EQ(trimmedSpaces(" \t"), "");
}

TEST(UnicodeTextTest, lowercasesEveryScript)
{
    EXPECT_EQ(lowercased("SLAB ÄΩЖ"), "slab äωж");
    EXPECT_EQ(lowercased(""), "");
}

TEST(UnicodeTextTest, lowercasesTheWholeLatinAlphabet)
{
    EXPECT_EQ(lowercased("@ABCDEFGHIJKLMNOPQRSTUVWXYZ["), "@abcdefghijklmnopqrstuvwxyz[");
    std::string key;
    setSearchKey(key, "ABCDEFGHIJKLMNOPQRSTUVWXYZ");
    EXPECT_EQ(key, "abcdefghijklmnopqrstuvwxyz");
}

TEST(UnicodeTextTest, keepsLettersAndNumbers)
{
    EXPECT_EQ(lettersAndNumbers("Memory_files, 2: [x]!"), "Memoryfiles2x");
    EXPECT_EQ(lettersAndNumbers("Memory_files, №2: é日!"), "Memoryfiles2é日");
    EXPECT_EQ(lettersAndNumbers("/09:@AZ[`az{~"), "09AZaz");
}

TEST(UnicodeTextTest, keepsAMarkOnlyBehindALetterOrNumber)
{
    EXPECT_EQ(lettersAndNumbers("e\u0301 हिन्दी 1\u0307\u0323"), "e\u0301हिन्दी1\u0307\u0323");
    EXPECT_EQ(lettersAndNumbers("\u0301a+\u0301b \u093F"), "ab");
    EXPECT_EQ(lettersAndNumbers("\xFF\u0301"), "");
}

TEST(UnicodeTextTest, dropsTheMarksOfPresentation)
{
    EXPECT_EQ(lettersAndNumbers("🗂\uFE0F Memory"), "Memory");
    EXPECT_EQ(lettersAndNumbers("1\uFE0F\u20E3 a\uFE00\u0301"), "1a\u0301");
    EXPECT_EQ(lettersAndNumbers("a\uFE20"), "a\uFE20");
}

TEST(UnicodeTextTest, knowsATextOfNothingButLettersAndNumbers)
{
    for (const std::string_view text : {"", "md", "7z", "cafe\u0301", "текст", "md\uFE0F"})
        EXPECT_TRUE(isLettersAndNumbers(text)) << text;
    for (const std::string_view text : {"a-b", "a b", "é→", "a\xFF"})
        EXPECT_FALSE(isLettersAndNumbers(text)) << text;
}

TEST(UnicodeTextTest, makesASearchKeyOfLettersAndNumbersInLowerCase)
{
    std::string key = "an earlier key";
    for (const std::string_view text : {"Memory_files, 2: [x]!", "", "_",
                                        "AZaz09@[`{/:", "Memory_files, №2: É日!", "É", "a\xFFZ"}) {
        setSearchKey(key, text);
        EXPECT_EQ(key, lettersAndNumbers(lowercased(text))) << text;
    }
}

TEST(UnicodeTextTest, countsUserPerceivedCharacters)
{
    const std::string_view family = "👩‍👩‍👧‍👦";
    EXPECT_EQ(byteCountOfCharacters("abc", 2), 2U);
    EXPECT_EQ(byteCountOfCharacters("abc", 3), 3U);
    EXPECT_EQ(byteCountOfCharacters("abc", 9), 3U);
    EXPECT_EQ(byteCountOfCharacters("abc", 0), 0U);
    EXPECT_EQ(byteCountOfCharacters(family, 1), family.size());
    EXPECT_EQ(byteCountOfCharacters("e\xCC\x81z", 1), 3U);
    EXPECT_EQ(byteCountOfCharacters("\r\nx", 1), 2U);
    const std::string mixed = "क्षि" + std::string(family) + "x";
    EXPECT_EQ(byteCountOfCharacters(mixed, 100), mixed.size());
}

TEST(UnicodeTextTest, cutsNoCodePointInTwo)
{
    EXPECT_EQ(firstBytes("abc", 3), "abc");
    EXPECT_EQ(firstBytes("abc", 2), "ab");
    EXPECT_EQ(firstBytes("abc", 0), "");
    for (const std::size_t limit : {1U, 2U, 3U, 4U})
        EXPECT_EQ(firstBytes("a😀b", limit), "a") << limit;
    EXPECT_EQ(firstBytes("a😀b", 5), "a😀");
    EXPECT_EQ(firstBytes("\x80\x80\x80\x80\x80\x80", 5), "\x80\x80\x80\x80\x80");
}

TEST(UnicodeTextTest, throwsWhereverMemoryRunsOutWhileCounting)
{
    loadCharacterRules();
    bool ranOut = true;
    for (long grants = 0; ranOut; ++grants) {
        ASSERT_LT(grants, 10'000);
        const UnicodeMemory memory(grants);
        try {
            EXPECT_EQ(byteCountOfCharacters("e\xCC\x81z", 1), 3U);
            EXPECT_FALSE(memory.ranOut());
        } catch (const std::bad_alloc &) {
            EXPECT_TRUE(memory.ranOut());
        }
        ranOut = memory.ranOut();
    }
    EXPECT_EQ(byteCountOfCharacters("e\xCC\x81z", 1), 3U);
}

} // namespace Loadwick
