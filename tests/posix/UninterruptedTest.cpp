#include "posix/Uninterrupted.h"

#include <gtest/gtest.h>

namespace Loadwick {

TEST(UninterruptedTest, repeatsACallUntilNoSignalInterruptsIt)
{
    std::error_code failure;
    int calls = 0;
    const auto interruptedTwice = [&] {
        ++calls;
        failure = calls < 3 ? std::make_error_code(std::errc::interrupted) : std::error_code();
        return calls;
    };
    EXPECT_EQ(uninterrupted(failure, interruptedTwice), 3);
    EXPECT_FALSE(failure);
}

TEST(UninterruptedTest, repeatsNoCallThatFailsForAnotherReason)
{
    std::error_code failure;
    int calls = 0;
    const auto denied = [&] {
        failure = std::make_error_code(std::errc::permission_denied);
        return ++calls;
    };
    EXPECT_EQ(uninterrupted(failure, denied), 1);
    EXPECT_EQ(failure, std::errc::permission_denied);
}

} // namespace Loadwick
