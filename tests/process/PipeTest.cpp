#include "process/Pipe.h"

#include <system_error>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

namespace Loadwick {

TEST(PipeTest, carriesBytesFromOneEndToTheOther)
{
    const Pipe pipe = Pipe::open();
    char byte = 0;
    ASSERT_EQ(write(pipe.writeEnd.number(), "x", 1), 1);
    ASSERT_EQ(read(pipe.readEnd.number(), &byte, 1), 1);
    EXPECT_EQ(byte, 'x');
}

TEST(PipeTest, isClosedOnExecAndAboveTheStandardStreams)
{
    const Pipe pipe = Pipe::open();
    for (const int end : {pipe.readEnd.number(), pipe.writeEnd.number()}) {
        EXPECT_EQ(fcntl(end, F_GETFD), FD_CLOEXEC);
        EXPECT_GT(end, STDERR_FILENO);
    }
}

TEST(PipeTest, leavesTheStandardStreamsFreeWhenTheyAreClosed)
{
    const FileDescriptor keptInput(fcntl(STDIN_FILENO, F_DUPFD_CLOEXEC, 10));
    close(STDIN_FILENO);
    const Pipe pipe = Pipe::open();
    EXPECT_GT(pipe.readEnd.number(), STDERR_FILENO);
    EXPECT_LT(fcntl(STDIN_FILENO, F_GETFD), 0);
    if (keptInput.isOpen())
        dup2(keptInput.number(), STDIN_FILENO);
}

// Unprivileged users may have used up what all their pipes together are permitted; even then it is
// never smaller than usual.
TEST(PipeTest, isAtLeastAsLargeAsUsual)
{
    const int capacity = Pipe::open().capacity();
    if (capacity == 0)
        GTEST_SKIP() << "this system does not tell";
    EXPECT_GE(capacity, 64 * 1024);
}

TEST(PipeTest, saysWhyThereIsNone)
{
    rlimit before{};
    ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &before), 0);
    const rlimit none{0, before.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &none), 0);
    std::error_code reason;
    try {
        (void)Pipe::open();
    } catch (const std::system_error &error) {
        // A sanitizer that checks the error's type needs descriptors of its own.
        setrlimit(RLIMIT_NOFILE, &before);
        reason = error.code();
    }
    setrlimit(RLIMIT_NOFILE, &before);
    EXPECT_EQ(reason, std::errc::too_many_files_open);
}

TEST(PipeTest, hasNoCapacityWhereItIsNotOpen)
{
    EXPECT_EQ(Pipe{}.capacity(), 0);
}

} // namespace Loadwick
