#include "model/ScanOutcome.h"

#include <new>
#include <stdexcept>

#include <gtest/gtest.h>

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

TEST(ScanOutcomeTest, isTheValueOfAStageThatEnds)
{
    const auto stage = [] { return 7; };
    EXPECT_EQ(scanOutcomeOf(stage), ScanOutcome<int>(7));
}

TEST(ScanOutcomeTest, passesAProbeErrorOn)
{
    EXPECT_EQ(outcomeOfThrowing(ProbeError::timedOut()), ScanOutcome<int>(ProbeError::timedOut()));
}

TEST(ScanOutcomeTest, passesTheTextOfAProbeErrorOnWithoutACopy)
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

TEST(ScanOutcomeTest, takesAnotherExceptionForUnreadableOutput)
{
    EXPECT_EQ(outcomeOfThrowing(std::runtime_error("the pipe broke")),
              ScanOutcome<int>(ProbeError::unreadableOutput("the pipe broke")));
    EXPECT_EQ(outcomeOfThrowing(std::bad_alloc()),
              ScanOutcome<int>(ProbeError::unreadableOutput(std::bad_alloc().what())));
    EXPECT_EQ(outcomeOfThrowing(std::runtime_error("a\xFFz")),
              ScanOutcome<int>(ProbeError::unreadableOutput("a\xEF\xBF\xBDz")));
}

TEST(ScanOutcomeTest, knowsNothingOfWhatIsNoException)
{
    EXPECT_EQ(outcomeOfThrowing(7),
              ScanOutcome<int>(ProbeError::unreadableOutput("unknown error")));
}

} // namespace Loadwick
