#include "support/FakeProbe.h"

#include <gtest/gtest.h>

#include "probe/ProbeError.h"
#include "samples/SampleReport.h"

namespace Loadwick {

TEST(FakeProbeTest, givesTheSampleResultAndRemembersTheFolders)
{
    FakeProbe probe;
    EXPECT_TRUE(probe.runs().empty());
    EXPECT_EQ(probe.run("/a"), sampleProbeResult());
    EXPECT_EQ(probe.run("/b"), sampleProbeResult());
    EXPECT_EQ(probe.runs(), (std::vector<std::filesystem::path>{"/a", "/b"}));
}

TEST(FakeProbeTest, failsAsItIsTold)
{
    FakeProbe probe;
    probe.answer = []() -> ProbeResult { throw ProbeError::timedOut(); };
    EXPECT_THROW(static_cast<void>(probe.run("/a")), ProbeError);
    EXPECT_EQ(probe.runs().size(), 1U);
}

} // namespace Loadwick
