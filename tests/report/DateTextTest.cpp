#include "report/DateText.h"

#include <gtest/gtest.h>

namespace Loadwick {

namespace {

constexpr std::chrono::sys_seconds morning{std::chrono::seconds(1'772'615'727)};

std::string dayIn(const char *locale, std::chrono::sys_seconds moment = morning)
{
    return DateText::day(moment, {.dates = locale});
}

} // namespace

TEST(DateTextTest, abbreviatesTheMonthAndNamesDayAndYear)
{
    EXPECT_EQ(dayIn("en_US"), "Mar 4, 2026");
}

TEST(DateTextTest, followsTheLocalesOrderAndWords)
{
    EXPECT_EQ(dayIn("de_DE"), "4. März 2026");
    EXPECT_EQ(dayIn("en_GB"), "4 Mar 2026");
}

TEST(DateTextTest, takesTheLocaleOfDatesNotOfFigures)
{
    EXPECT_EQ(DateText::day(morning, {.numbers = "de_DE", .dates = "en_US"}), "Mar 4, 2026");
}

TEST(DateTextTest, survivesMomentsFarAway)
{
    EXPECT_EQ(dayIn("en_US", std::chrono::sys_seconds(std::chrono::hours(12))), "Jan 1, 1970");
    EXPECT_EQ(dayIn("en_US", std::chrono::sys_days(std::chrono::year(9999) / 12 / 31)),
              "Dec 31, 9999");
}

} // namespace Loadwick
