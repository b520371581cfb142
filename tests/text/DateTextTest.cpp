#include "text/DateText.h"

#include <gtest/gtest.h>

#include "support/TimeZone.h"

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
    const TimeZone utc("UTC");
    EXPECT_EQ(dayIn("en_US"), "Mar 4, 2026");
}

TEST(DateTextTest, followsTheLocalesOrderAndWords)
{
    const TimeZone utc("UTC");
    EXPECT_EQ(dayIn("de_DE"), "4. März 2026");
    EXPECT_EQ(dayIn("en_GB"), "4 Mar 2026");
}

TEST(DateTextTest, takesTheLocaleOfDatesNotOfFigures)
{
    const TimeZone utc("UTC");
    EXPECT_EQ(DateText::day(morning, {.numbers = "de_DE", .dates = "en_US"}), "Mar 4, 2026");
}

TEST(DateTextTest, takesTheTimeZoneOfTheProcess)
{
    const std::chrono::sys_seconds lateEvening = morning + std::chrono::hours(14);
    {
        const TimeZone zone("America/New_York");
        EXPECT_EQ(dayIn("en_US", lateEvening), "Mar 4, 2026");
    }
    const TimeZone zone("Asia/Tokyo");
    EXPECT_EQ(dayIn("en_US", lateEvening), "Mar 5, 2026");
}

TEST(DateTextTest, survivesMomentsFarAway)
{
    const TimeZone utc("UTC");
    EXPECT_EQ(dayIn("en_US", std::chrono::sys_seconds()), "Jan 1, 1970");
    EXPECT_EQ(dayIn("en_US", std::chrono::sys_days(std::chrono::year(9999) / 12 / 31)),
              "Dec 31, 9999");
}

TEST(DateTextTest, addsHoursAndMinutes)
{
    const TimeZone utc("UTC");
    EXPECT_EQ(DateText::dayAndTime(morning, {.dates = "de_DE"}), "4. März 2026, 09:15");
    EXPECT_EQ(DateText::dayAndTime(morning, {.dates = "ja_JP"}), "2026年3月4日 9:15");
}

TEST(DateTextTest, writesTheTimeOfDayAloneForShortSpans)
{
    const TimeZone utc("UTC");
    EXPECT_EQ(DateText::timeOfDay(morning, {.dates = "de_DE"}), "09:15");
    EXPECT_EQ(DateText::secondOfDay(morning, {.dates = "de_DE"}), "09:15:27");
    EXPECT_EQ(DateText::dayOfYearAndTime(morning, {.dates = "de_DE"}), "4. März, 09:15");
}

TEST(DateTextTest, writesTwelveHoursWhereTheLocaleCountsThem)
{
    const TimeZone utc("UTC");
    const std::string text = DateText::timeOfDay(morning, {.dates = "en_US"});
    EXPECT_TRUE(text.starts_with("9:15")) << text;
    EXPECT_TRUE(text.ends_with("AM")) << text; // which blank parts them differs by ICU's version
}

TEST(DateTextTest, writesPartsOfADateForLongSpans)
{
    const TimeZone utc("UTC");
    EXPECT_EQ(DateText::dayOfYear(morning, {.dates = "en_US"}), "Mar 4");
    EXPECT_EQ(DateText::dayOfYear(morning, {.dates = "de_DE"}), "4. März");
    EXPECT_EQ(DateText::month(morning, {.dates = "en_US"}), "Mar 2026");
    EXPECT_EQ(DateText::month(morning, {.dates = "de_DE"}), "März 2026");
    EXPECT_EQ(DateText::year(morning, {.dates = "en_US"}), "2026");
}

TEST(DateTextTest, everyFormFollowsTheTimeZoneWhenItChanges)
{
    const std::chrono::sys_seconds newYear = std::chrono::sys_days(std::chrono::year(2026) / 1 / 1);
    for (const auto &[zone, day, time, month] :
         {std::tuple("America/New_York", "31. Dez.", "19:00", "Dez. 2025"),
          std::tuple("Asia/Tokyo", "1. Jan.", "09:00", "Jan. 2026")}) {
        const TimeZone here(zone);
        const TextLocale german{.dates = "de_DE"};
        EXPECT_EQ(DateText::dayOfYear(newYear, german), day);
        EXPECT_EQ(DateText::timeOfDay(newYear, german), time);
        EXPECT_EQ(DateText::month(newYear, german), month);
    }
}

TEST(DateTextTest, everyFormFollowsTheLocaleWhenItChanges)
{
    const TimeZone utc("UTC");
    EXPECT_EQ(dayIn("en_US"), "Mar 4, 2026");
    EXPECT_EQ(dayIn("de_DE"), "4. März 2026");
    EXPECT_EQ(dayIn("en_US"), "Mar 4, 2026");
}

} // namespace Loadwick
