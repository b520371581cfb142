#include "text/IsoDate.h"

#include <gtest/gtest.h>

namespace Loadwick {

namespace {

using std::chrono::seconds;
using std::chrono::sys_seconds;

sys_seconds moment(std::int64_t secondsSince1970)
{
    return sys_seconds(seconds(secondsSince1970));
}

} // namespace

TEST(IsoDateTest, writesUtcWithWholeSeconds)
{
    EXPECT_EQ(IsoDate::text(moment(0)), "1970-01-01T00:00:00Z");
    EXPECT_EQ(IsoDate::text(moment(1'772'615'727)), "2026-03-04T09:15:27Z");
    EXPECT_EQ(IsoDate::text(moment(-1)), "1969-12-31T23:59:59Z");
    EXPECT_EQ(IsoDate::text(moment(951'782'400)), "2000-02-29T00:00:00Z");
}

TEST(IsoDateTest, readsWhatItWrites)
{
    for (const std::int64_t second :
         {0LL, -1LL, 1'772'615'727LL, 951'782'400LL, 4'102'444'799LL, 253'402'300'799LL}) {
        const auto read = IsoDate::fromText(IsoDate::text(moment(second)));
        ASSERT_TRUE(read) << second;
        EXPECT_EQ(*read, moment(second));
    }
}

TEST(IsoDateTest, keepsInsideTheYearsThatItCanExpress)
{
    EXPECT_EQ(IsoDate::text(sys_seconds::min()), "0000-01-01T00:00:00Z");
    EXPECT_EQ(IsoDate::text(sys_seconds::max()), "9999-12-31T23:59:59Z");
    EXPECT_TRUE(IsoDate::fromText("0000-01-01T00:00:00Z"));
    EXPECT_TRUE(IsoDate::fromText("9999-12-31T23:59:59Z"));
}

TEST(IsoDateTest, knowsLeapYears)
{
    EXPECT_TRUE(IsoDate::fromText("2024-02-29T00:00:00Z"));
    EXPECT_TRUE(IsoDate::fromText("2000-02-29T00:00:00Z"));
    EXPECT_FALSE(IsoDate::fromText("2023-02-29T00:00:00Z"));
    EXPECT_FALSE(IsoDate::fromText("1900-02-29T00:00:00Z"));
}

TEST(IsoDateTest, readsNoMomentThatDoesNotExist)
{
    for (const std::string_view text :
         {"2026-00-04T09:15:27Z", "2026-13-04T09:15:27Z", "2026-03-00T09:15:27Z",
          "2026-03-32T09:15:27Z", "2026-04-31T09:15:27Z", "2026-03-04T24:00:00Z",
          "2026-03-04T09:60:27Z", "2026-03-04T09:15:60Z"})
        EXPECT_FALSE(IsoDate::fromText(text)) << text;
}

TEST(IsoDateTest, readsNoOtherForm)
{
    for (const std::string_view text :
         {"", "2026-03-04", "2026-03-04T09:15:27", "2026-03-04T09:15:27z", "2026-03-04t09:15:27Z",
          "2026-03-04 09:15:27Z", "2026-03-04T09:15:27.000Z", "2026-03-04T09:15:27+00:00",
          "20260304T091527Z", "2026-3-4T09:15:27Z", "+026-03-04T09:15:27Z", "-026-03-04T09:15:27Z",
          " 2026-03-04T09:15:27Z", "2026-03-04T09:15:27Z ", "2026-03-04T09:15Z",
          "2026-03-04T 9:15:27Z", "12026-03-04T09:15:27Z"})
        EXPECT_FALSE(IsoDate::fromText(text)) << text;
}

TEST(IsoDateTest, takesNothingBesideTheDigitsForADigit)
{
    for (const char wrong : {'/', ':', ' ', '-', 'a', '\xC2'}) {
        std::string text = "2026-03-04T09:15:27Z";
        text[0] = wrong;
        EXPECT_FALSE(IsoDate::fromText(text)) << text;
    }
}

} // namespace Loadwick
