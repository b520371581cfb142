#include "report/SlabAttribution.h"

#include <gtest/gtest.h>

namespace Loadwick {

TEST(SlabAttributionTest, isIdentifiedByOrdinalProvenanceAndName)
{
    const SlabAttribution row{"Personal instructions", 7, Provenance::localEstimate, 3};
    EXPECT_EQ(row.id(), "3|localEstimate|Personal instructions");
    EXPECT_EQ((SlabAttribution{"a|b", -1, Provenance::remainder, 0}).id(), "0|remainder|a|b");
}

TEST(SlabAttributionTest, isEqualOnlyInEveryField)
{
    const SlabAttribution row{"a", 1, Provenance::selfReported, 0};
    EXPECT_EQ(row, (SlabAttribution{"a", 1, Provenance::selfReported, 0}));
    EXPECT_NE(row, (SlabAttribution{"b", 1, Provenance::selfReported, 0}));
    EXPECT_NE(row, (SlabAttribution{"a", 2, Provenance::selfReported, 0}));
    EXPECT_NE(row, (SlabAttribution{"a", 1, Provenance::localEstimate, 0}));
    EXPECT_NE(row, (SlabAttribution{"a", 1, Provenance::selfReported, 1}));
}

} // namespace Loadwick
