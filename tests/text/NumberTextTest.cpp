#include "text/NumberText.h"

#include <array>
#include <cstdio>
#include <limits>
#include <random>
#include <thread>

#include <gtest/gtest.h>

#include "text/TextLocale.h"

namespace Loadwick {

namespace {

std::string groupedIn(const char *locale, std::int64_t number)
{
    return NumberText::grouped(number, {.numbers = locale});
}

std::string asPrintf(double number)
{
    std::array<char, 400> text{};
    const int size = std::snprintf(text.data(), text.size(), "%.1f", number);
    return {text.data(), static_cast<std::size_t>(size)};
}

} // namespace

TEST(NumberTextTest, groupsByTheLocale)
{
    EXPECT_EQ(groupedIn("en_US", 30'000), "30,000");
    EXPECT_EQ(groupedIn("en_US", 1'234'567), "1,234,567");
    EXPECT_EQ(groupedIn("de_DE", 1'234'567), "1.234.567");
    EXPECT_EQ(groupedIn("hi_IN", 1'234'567), "12,34,567");
    EXPECT_EQ(groupedIn("sv_SE", 1'234'567), "1\u00A0234\u00A0567");
    EXPECT_EQ(groupedIn("pl_PL", 1'234'567), "1\u00A0234\u00A0567");
}

TEST(NumberTextTest, groupsFourDigitsWhereTheLocaleDoes)
{
    EXPECT_EQ(groupedIn("en_US", 1'234), "1,234");
    EXPECT_EQ(groupedIn("de_DE", 1'234), "1.234");
    EXPECT_EQ(groupedIn("pl_PL", 1'234), "1234");
    EXPECT_EQ(groupedIn("es_ES", 1'234), "1234");
}

TEST(NumberTextTest, signsEvenAChangeOfZero)
{
    EXPECT_EQ(NumberText::groupedChange(1'234, {}), "+1,234");
    EXPECT_EQ(NumberText::groupedChange(0, {}), "+0");
    EXPECT_EQ(NumberText::groupedChange(-2'500, {}), "-2,500");
    EXPECT_EQ(NumberText::groupedChange(-2'500, {.numbers = "de_DE"}), "-2.500");
    EXPECT_EQ(NumberText::groupedChange(1'234'567, {.numbers = "hi_IN"}), "+12,34,567");
    EXPECT_EQ(NumberText::groupedChange(25, {.numbers = "ar_EG"}), "\u061C+٢٥");
    EXPECT_EQ(NumberText::groupedChange(-25, {.numbers = "ar_EG"}), "\u061C-٢٥");
}

TEST(NumberTextTest, writesTheLocalesMinusSign)
{
    EXPECT_EQ(groupedIn("en_US", -5), "-5");
    EXPECT_EQ(groupedIn("sv_SE", -30'000), "\u221230\u00A0000");
}

TEST(NumberTextTest, writesTheLocalesDigits)
{
    EXPECT_EQ(groupedIn("fa_IR", 30'000), "۳۰٬۰۰۰");
}

TEST(NumberTextTest, writesEverySixtyFourBitInteger)
{
    EXPECT_EQ(groupedIn("en_US", 0), "0");
    EXPECT_EQ(groupedIn("en_US", std::numeric_limits<std::int64_t>::max()),
              "9,223,372,036,854,775,807");
    EXPECT_EQ(groupedIn("en_US", std::numeric_limits<std::int64_t>::min()),
              "-9,223,372,036,854,775,808");
}

TEST(NumberTextTest, followsTheLocaleFromCallToCall)
{
    for (int round = 0; round < 3; ++round) {
        EXPECT_EQ(groupedIn("en_US", 60'000), "60,000");
        EXPECT_EQ(groupedIn("de_DE", 60'000), "60.000");
    }
}

TEST(NumberTextTest, groupsInAnUnknownLocale)
{
    EXPECT_NE(groupedIn("zz_ZZ", 30'000), "");
    EXPECT_NE(groupedIn("", 30'000), "");
}

TEST(NumberTextTest, writesOneDecimal)
{
    EXPECT_EQ(NumberText::oneDecimal(12.04), "12.0");
    EXPECT_EQ(NumberText::oneDecimal(0), "0.0");
    EXPECT_EQ(NumberText::oneDecimal(12345.678), "12345.7");
    EXPECT_EQ(NumberText::oneDecimal(99.95), "100.0");
}

TEST(NumberTextTest, roundsTiesToEven)
{
    EXPECT_EQ(NumberText::oneDecimal(12.25), "12.2");
    EXPECT_EQ(NumberText::oneDecimal(12.75), "12.8");
    EXPECT_EQ(NumberText::oneDecimal(-0.25), "-0.2");
}

TEST(NumberTextTest, writesZeroInfinityAndTheLargestNumbers)
{
    EXPECT_EQ(NumberText::oneDecimal(-0.0), "-0.0");
    EXPECT_EQ(NumberText::oneDecimal(std::numeric_limits<double>::quiet_NaN()), "nan");
    EXPECT_EQ(NumberText::oneDecimal(std::numeric_limits<double>::infinity()), "inf");
    const std::string lowest = NumberText::oneDecimal(std::numeric_limits<double>::lowest());
    EXPECT_EQ(lowest, asPrintf(std::numeric_limits<double>::lowest()));
    EXPECT_EQ(lowest.size(), 312U);
}

TEST(NumberTextTest, agreesWithPrintfOnRandomNumbers)
{
    std::mt19937 random(20260823);
    std::uniform_real_distribution<double> numbers(-2000, 2000);
    std::uniform_int_distribution<int> eighths(-16000, 16000);
    for (int round = 0; round < 5000; ++round) {
        const double number = round % 2 == 0 ? numbers(random) : eighths(random) / 8.0;
        EXPECT_EQ(NumberText::oneDecimal(number), asPrintf(number)) << number;
    }
}

TEST(NumberTextTest, fallsBackToTheLibrarysLocaleWithoutAName)
{
    std::string text;
    std::thread([&] { text = groupedIn("", 1'234) + groupedIn("", 5); }).join();
    EXPECT_EQ(text.back(), '5');
    EXPECT_GE(text.size(), 5U);
}

} // namespace Loadwick
