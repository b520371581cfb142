#include "support/Measurement.h"

#include <gtest/gtest.h>

namespace Loadwick {

TEST(MeasurementTest, readsWhatTheToolPrints)
{
    const auto values = measured({"weights", "7"});
    EXPECT_EQ(values.at("outcome"), 7);
    EXPECT_EQ(values.at("files-opened"), 0);
    EXPECT_GT(values.at("peak-kib"), 0);
}

TEST(MeasurementTest, startsEachMeasurementAnew)
{
    EXPECT_EQ(measured({"weights", "1"}).at("outcome"), 1);
    EXPECT_EQ(measured({"weights", "2"}).at("outcome"), 2);
}

} // namespace Loadwick
