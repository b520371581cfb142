#include "text/TextLocale.h"

#include <gtest/gtest.h>

namespace Loadwick {

namespace {

/// The locale of figures where LANG has that value.
std::string numbers(const char *value)
{
    return TextLocale::fromEnvironment({{"LANG", value}}).numbers;
}

} // namespace

TEST(TextLocaleTest, isEnglishWithoutAnyVariable)
{
    EXPECT_EQ(TextLocale::fromEnvironment({}), TextLocale());
    EXPECT_EQ(TextLocale().numbers, "en_US");
    EXPECT_EQ(TextLocale().dates, "en_US");
}

TEST(TextLocaleTest, takesTheFirstVariableThatIsSet)
{
    Environment environment{{"LANG", "sv_SE.UTF-8"}};
    EXPECT_EQ(TextLocale::fromEnvironment(environment), (TextLocale{"sv_SE", "sv_SE"}));
    environment["LC_NUMERIC"] = "de_DE.UTF-8";
    EXPECT_EQ(TextLocale::fromEnvironment(environment), (TextLocale{"de_DE", "sv_SE"}));
    environment["LC_TIME"] = "pl_PL";
    EXPECT_EQ(TextLocale::fromEnvironment(environment), (TextLocale{"de_DE", "pl_PL"}));
    environment["LC_ALL"] = "hi_IN";
    EXPECT_EQ(TextLocale::fromEnvironment(environment), (TextLocale{"hi_IN", "hi_IN"}));
}

TEST(TextLocaleTest, skipsAnEmptyVariable)
{
    const Environment environment{
        {"LC_ALL", ""}, {"LC_NUMERIC", ""}, {"LC_TIME", "de_AT"}, {"LANG", "fr_FR"}};
    EXPECT_EQ(TextLocale::fromEnvironment(environment), (TextLocale{"fr_FR", "de_AT"}));
}

TEST(TextLocaleTest, countsTheCLocaleAsEnglish)
{
    for (const char *value :
         {"C", "POSIX", "C.UTF-8", "C.utf8", ".UTF-8", "/usr/share/locale/x", "x"})
        EXPECT_EQ(TextLocale::fromEnvironment({{"LC_ALL", value}, {"LANG", "de_DE"}}), TextLocale())
            << value;
}

TEST(TextLocaleTest, turnsAModifierIntoAScript)
{
    EXPECT_EQ(numbers("sr_RS@latin"), "sr_Latn_RS");
    EXPECT_EQ(numbers("sr_RS.UTF-8@latin"), "sr_Latn_RS");
    EXPECT_EQ(numbers("uz_UZ.UTF-8@cyrillic"), "uz_Cyrl_UZ");
    EXPECT_EQ(numbers("de_DE@euro"), "de_DE");
    EXPECT_EQ(numbers("ca"), "ca");
}

TEST(TextLocaleTest, isEnglishWhereIcuKnowsNothing)
{
    const std::string endless = "de_" + std::string(156, 'a');
    for (const std::string &value : {endless, endless + std::string(100'000, 'a'),
                                     std::string("xx_YY"), std::string("xx"), std::string("zzz")})
        EXPECT_EQ(TextLocale::fromEnvironment({{"LC_TIME", value}}), TextLocale()) << value;
}

TEST(TextLocaleTest, keepsWhatIcuKnowsOfAName)
{
    EXPECT_EQ(numbers("de_ZZ"), "de_ZZ");
    EXPECT_EQ(numbers("es_419"), "es_419");
    EXPECT_EQ(numbers("zh_Hans_CN.UTF-8"), "zh_Hans_CN");
    EXPECT_EQ(numbers("iw_IL"), "iw_IL");
    EXPECT_EQ(numbers("no_NO"), "no_NO");
    EXPECT_EQ(numbers("de_DE-u-nu-none"), "de_DE");
    EXPECT_EQ(numbers("de_DE_u_nu_none"), "de_DE");
}

TEST(TextLocaleTest, acceptsOnlyTwoOrThreeLettersAsALanguage)
{
    EXPECT_EQ(numbers("fil_PH"), "fil_PH");
    EXPECT_EQ(numbers("DE"), "de");
    for (const char *value : {"d1", "12", "@de", "d~", "d[", "abcd"})
        EXPECT_EQ(numbers(value), "en_US") << value;
}

} // namespace Loadwick
