#include "text/DateText.h"

#include <gtest/gtest.h>

#include "support/TimeZone.h"
#include "text/TextLocale.h"

namespace Loadwick {

namespace {

using std::chrono::seconds;
using std::chrono::sys_seconds;

sys_seconds moment(std::int64_t secondsSince1970)
{
    return sys_seconds(seconds(secondsSince1970));
}

constexpr sys_seconds morning{seconds(1'772'615'727)};

std::string dayIn(const char *locale, std::chrono::sys_seconds moment = morning)
{
    return dateText(moment, DateForm::day, {.dates = locale});
}

} // namespace

TEST(DateTextTest, followsTheLocaleForDatesNotForFigures)
{
    const TimeZone utc("UTC");
    EXPECT_EQ(dateText(morning, DateForm::day, {.numbers = "de_DE", .dates = "en_US"}),
              "Mar 4, 2026");
}

TEST(DateTextTest, followsTheTimeZoneOfTheProcess)
{
    const std::chrono::sys_seconds lateEvening = morning + std::chrono::hours(14);
    {
        const TimeZone zone("America/New_York");
        EXPECT_EQ(dayIn("en_US", lateEvening), "Mar 4, 2026");
    }
    const TimeZone zone("Asia/Tokyo");
    EXPECT_EQ(dayIn("en_US", lateEvening), "Mar 5, 2026");
}

TEST(DateTextTest, writesDistantMoments)
{
    const TimeZone utc("UTC");
    EXPECT_EQ(dayIn("en_US", std::chrono::sys_seconds()), "Jan 1, 1970");
    EXPECT_EQ(dayIn("en_US", std::chrono::sys_days(std::chrono::year(9999) / 12 / 31)),
              "Dec 31, 9999");
}

TEST(DateTextTest, writesThePartsOfEachForm)
{
    const TimeZone utc("UTC");
    struct Case
    {
        DateForm form;
        const char *english;
        const char *german;
    };
    for (const Case &each :
         {Case{DateForm::year, "2026", "2026"}, Case{DateForm::month, "Mar 2026", "März 2026"},
          Case{DateForm::day, "Mar 4, 2026", "4. März 2026"},
          Case{DateForm::dayOfYear, "Mar 4", "4. März"}}) {
        EXPECT_EQ(dateText(morning, each.form, {.dates = "en_US"}), each.english);
        EXPECT_EQ(dateText(morning, each.form, {.dates = "de_DE"}), each.german);
    }
    for (const auto &[form, german] :
         {std::pair(DateForm::dayAndTime, "4. März 2026, 09:15"),
          std::pair(DateForm::dayOfYearAndTime, "4. März, 09:15"),
          std::pair(DateForm::timeOfDay, "09:15"), std::pair(DateForm::secondOfDay, "09:15:27")})
        EXPECT_EQ(dateText(morning, form, {.dates = "de_DE"}), german);
    EXPECT_EQ(dateText(morning, DateForm::dayAndTime, {.dates = "ja_JP"}), "2026年3月4日 9:15");
}

TEST(DateTextTest, usesTheLocalesTwelveHourClock)
{
    const TimeZone utc("UTC");
    const std::string text = dateText(morning, DateForm::timeOfDay, {.dates = "en_US"});
    EXPECT_TRUE(text.starts_with("9:15")) << text;
    EXPECT_TRUE(text.ends_with("AM")) << text; // the space before it depends on ICU's version
}

TEST(DateTextTest, everyFormFollowsTheTimeZoneWhenItChanges)
{
    const std::chrono::sys_seconds newYear = std::chrono::sys_days(std::chrono::year(2026) / 1 / 1);
    for (const auto &[zone, day, time, month] :
         {std::tuple("America/New_York", "31. Dez.", "19:00", "Dez. 2025"),
          std::tuple("Asia/Tokyo", "1. Jan.", "09:00", "Jan. 2026")}) {
        const TimeZone here(zone);
        const TextLocale german{.dates = "de_DE"};
        EXPECT_EQ(dateText(newYear, DateForm::dayOfYear, german), day);
        EXPECT_EQ(dateText(newYear, DateForm::timeOfDay, german), time);
        EXPECT_EQ(dateText(newYear, DateForm::month, german), month);
    }
}

TEST(DateTextTest, everyFormFollowsTheLocaleWhenItChanges)
{
    const TimeZone utc("UTC");
    EXPECT_EQ(dayIn("en_US"), "Mar 4, 2026");
    EXPECT_EQ(dayIn("de_DE"), "4. März 2026");
    EXPECT_EQ(dayIn("en_GB"), "4 Mar 2026");
    EXPECT_EQ(dayIn("en_US"), "Mar 4, 2026");
}

TEST(DateTextTest, writesIsoDatesInUtcWithWholeSeconds)
{
    EXPECT_EQ(IsoDate::text(moment(0)), "1970-01-01T00:00:00Z");
    EXPECT_EQ(IsoDate::text(moment(1'772'615'727)), "2026-03-04T09:15:27Z");
    EXPECT_EQ(IsoDate::text(moment(-1)), "1969-12-31T23:59:59Z");
    EXPECT_EQ(IsoDate::text(moment(951'782'400)), "2000-02-29T00:00:00Z");
}

TEST(DateTextTest, readsTheIsoDatesThatItWrites)
{
    for (const std::int64_t second :
         {0LL, -1LL, 1'772'615'727LL, 951'782'400LL, 4'102'444'799LL, 253'402'300'799LL}) {
        const auto read = IsoDate::fromText(IsoDate::text(moment(second)));
        ASSERT_TRUE(read) << second;
        EXPECT_EQ(*read, moment(second));
    }
}

TEST(DateTextTest, clampsIsoDatesToTheYearsTheyCanExpress)
{
    EXPECT_EQ(IsoDate::text(sys_seconds::min()), "0000-01-01T00:00:00Z");
    EXPECT_EQ(IsoDate::text(sys_seconds::max()), "9999-12-31T23:59:59Z");
    EXPECT_TRUE(IsoDate::fromText("0000-01-01T00:00:00Z"));
    EXPECT_TRUE(IsoDate::fromText("9999-12-31T23:59:59Z"));
}

TEST(DateTextTest, knowsLeapYears)
{
    EXPECT_TRUE(IsoDate::fromText("2024-02-29T00:00:00Z"));
    EXPECT_TRUE(IsoDate::fromText("2000-02-29T00:00:00Z"));
    EXPECT_FALSE(IsoDate::fromText("2023-02-29T00:00:00Z"));
    EXPECT_FALSE(IsoDate::fromText("1900-02-29T00:00:00Z"));
}

TEST(DateTextTest, rejectsNonexistentMoments)
{
    for (const std::string_view text :
         {"2026-00-04T09:15:27Z", "2026-13-04T09:15:27Z", "2026-03-00T09:15:27Z",
          "2026-03-32T09:15:27Z", "2026-04-31T09:15:27Z", "2026-03-04T24:00:00Z",
          "2026-03-04T09:60:27Z", "2026-03-04T09:15:60Z"})
        EXPECT_FALSE(IsoDate::fromText(text)) << text;
}

TEST(DateTextTest, rejectsOtherFormsOfAnIsoDate)
{
    for (const std::string_view text : {"",
                                        "2026-03-04",
                                        "2026-03-04T09:15:27",
                                        "2026-03-04T09:15:27z",
                                        "2026-03-04t09:15:27Z",
                                        "2026-03-04 09:15:27Z",
                                        "2026-03-04T09:15:27.000Z",
                                        "2026-03-04T09:15:27+00:00",
                                        "20260304T091527Z",
                                        "2026-3-4T09:15:27Z",
                                        "+026-03-04T09:15:27Z",
                                        "-026-03-04T09:15:27Z",
                                        " 2026-03-04T09:15:27Z",
                                        "2026-03-04T09:15:27Z ",
                                        "2026-03-04T09:15Z",
                                        "2026-03-04T 9:15:27Z",
                                        "12026-03-04T09:15:27Z",
                                        "/026-03-04T09:15:27Z",
                                        ":026-03-04T09:15:27Z",
                                        "a026-03-04T09:15:27Z",
                                        "\xC2"
                                        "026-03-04T09:15:27Z"})
        EXPECT_FALSE(IsoDate::fromText(text)) << text;
}

} // namespace Loadwick
