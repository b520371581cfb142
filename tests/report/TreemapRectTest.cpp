#include "report/TreemapRect.h"

#include <gtest/gtest.h>

namespace Loadwick {

TEST(TreemapRectTest, hasTheAreaOfItsSides)
{
    constexpr TreemapRect rect{.x = 0.5, .y = 0.25, .width = 0.5, .height = 0.25};
    static_assert(rect.area() == 0.125);
}

TEST(TreemapRectTest, zeroIsNothingAtTheOrigin)
{
    EXPECT_EQ(TreemapRect::zero, (TreemapRect{0.0, 0.0, 0.0, 0.0}));
    EXPECT_EQ(TreemapRect::zero.area(), 0.0);
}

TEST(TreemapRectTest, equalsOnlyWhatAgreesInAllFourFields)
{
    constexpr TreemapRect rect{1.0, 2.0, 3.0, 4.0};
    EXPECT_EQ(rect, (TreemapRect{1.0, 2.0, 3.0, 4.0}));
    for (const TreemapRect &other : {TreemapRect{0.0, 2.0, 3.0, 4.0},
                                     {1.0, 0.0, 3.0, 4.0},
                                     {1.0, 2.0, 0.0, 4.0},
                                     {1.0, 2.0, 3.0, 0.0}})
        EXPECT_NE(rect, other);
}

} // namespace Loadwick
