#include "samples/SampleReport.h"

#include <gtest/gtest.h>

namespace Loadwick {

TEST(SampleReportTest, addsUp)
{
    const ScanReport report = sampleReport();
    std::int64_t sum = 0;
    for (const SlabAttribution &row : report.rows)
        sum += row.tokens;
    EXPECT_EQ(sum, report.total);
    EXPECT_EQ(report.total, sampleProbeResult().authoritativeTotal);
}

} // namespace Loadwick
