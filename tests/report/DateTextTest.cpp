#include "report/DateText.h"

#include <gtest/gtest.h>
#include <unicode/timezone.h>

namespace Loadwick {

namespace {

constexpr std::chrono::sys_seconds morning{std::chrono::seconds(1'772'615'727)};

/// Lives in a time zone for as long as it lasts.
class TimeZone
{
public:
    explicit TimeZone(const char *name)
    {
        icu::TimeZone::adoptDefault(icu::TimeZone::createTimeZone(name));
    }
    ~TimeZone() { icu::TimeZone::adoptDefault(icu::TimeZone::detectHostTimeZone()); }

    TimeZone(const TimeZone &) = delete;
    TimeZone &operator=(const TimeZone &) = delete;
};

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

} // namespace Loadwick
