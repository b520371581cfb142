#include "model/ScanState.h"

#include <gtest/gtest.h>

#include "samples/SampleReport.h"

namespace Loadwick {

TEST(ScanStateTest, isScanningInOneCaseOnly)
{
    EXPECT_TRUE(ScanState::scanning().isScanning());
    EXPECT_FALSE(ScanState::idle().isScanning());
    EXPECT_FALSE(ScanState::result(sampleReport()).isScanning());
    EXPECT_FALSE(ScanState::failed(ProbeError::timedOut()).isScanning());
}

TEST(ScanStateTest, isEqualByCaseAndPayload)
{
    EXPECT_EQ(ScanState::idle(), ScanState::idle());
    EXPECT_NE(ScanState::idle(), ScanState::scanning());
    EXPECT_EQ(ScanState::result(sampleReport()), ScanState::result(sampleReport()));
    ScanReport other = sampleReport();
    other.total += 1;
    EXPECT_NE(ScanState::result(sampleReport()), ScanState::result(other));
    EXPECT_EQ(ScanState::failed(ProbeError::timedOut()), ScanState::failed(ProbeError::timedOut()));
    EXPECT_NE(ScanState::failed(ProbeError::sessionFailed("a")),
              ScanState::failed(ProbeError::sessionFailed("b")));
}

TEST(ScanStateTest, carriesItsPayload)
{
    const ScanState result = ScanState::result(sampleReport());
    EXPECT_EQ(std::get<ScanState::Result>(result.value()).report, sampleReport());
    const ScanState failed = ScanState::failed(ProbeError::notAuthenticated());
    EXPECT_EQ(std::get<ScanState::Failed>(failed.value()).error, ProbeError::notAuthenticated());
}

} // namespace Loadwick
