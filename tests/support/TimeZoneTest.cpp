#include "support/TimeZone.h"

#include <gtest/gtest.h>

#include "text/DateText.h"
#include "text/TextLocale.h"

namespace Loadwick {

namespace {

std::string hour()
{
    return dateText({}, DateForm::timeOfDay, {.dates = "de_DE"});
}

} // namespace

TEST(TimeZoneTest, appliesWhileItLives)
{
    const std::string before = hour();
    {
        const TimeZone tokyo("Asia/Tokyo");
        EXPECT_EQ(hour(), "09:00");
    }
    EXPECT_EQ(hour(), before);
}

} // namespace Loadwick
