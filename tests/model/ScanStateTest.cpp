#include "model/ScanState.h"

#include <new>
#include <stdexcept>

#include <gtest/gtest.h>

#include "samples/SampleReport.h"

namespace Loadwick {

namespace {

/// The outcome of a stage that throws `thrown`.
template<typename Thrown>
ScanOutcome<int> outcomeOfThrowing(Thrown thrown)
{
    const auto stage = [&]() -> int { throw thrown; };
    return scanOutcomeOf(stage);
}

} // namespace

TEST(ScanStateTest, isScanningInOnlyOneCase)
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

TEST(ScanStateTest, anOutcomeIsTheValueOfItsStage)
{
    const auto stage = [] { return 7; };
    EXPECT_EQ(scanOutcomeOf(stage), ScanOutcome<int>(7));
}

TEST(ScanStateTest, anOutcomePassesAProbeErrorOn)
{
    EXPECT_EQ(outcomeOfThrowing(ProbeError::timedOut()), ScanOutcome<int>(ProbeError::timedOut()));
}

TEST(ScanStateTest, anOutcomePassesOnAProbeErrorsTextWithoutCopying)
{
    const auto textOf = [](const ProbeError &error) {
        return std::get<ProbeError::SessionFailed>(error.value()).text.data();
    };
    const char *thrown = nullptr;
    const auto stage = [&]() -> int {
        ProbeError error = ProbeError::sessionFailed(std::string(1000, 'x'));
        thrown = textOf(error);
        throw error;
    };
    const auto outcome = scanOutcomeOf(stage);
    EXPECT_EQ(textOf(std::get<ProbeError>(outcome)), thrown);
}

TEST(ScanStateTest, anOutcomeTurnsAnotherExceptionIntoUnreadableOutput)
{
    EXPECT_EQ(outcomeOfThrowing(std::runtime_error("the pipe broke")),
              ScanOutcome<int>(ProbeError::unreadableOutput("the pipe broke")));
    EXPECT_EQ(outcomeOfThrowing(std::bad_alloc()),
              ScanOutcome<int>(ProbeError::unreadableOutput(std::bad_alloc().what())));
    EXPECT_EQ(outcomeOfThrowing(std::runtime_error("a\xFFz")),
              ScanOutcome<int>(ProbeError::unreadableOutput("a\xEF\xBF\xBDz")));
}

TEST(ScanStateTest, anOutcomeDescribesANonExceptionAsUnknown)
{
    EXPECT_EQ(outcomeOfThrowing(7),
              ScanOutcome<int>(ProbeError::unreadableOutput("unknown error")));
}

} // namespace Loadwick
