#include "posix/FileDescriptor.h"

#include <array>
#include <cerrno>
#include <fstream>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

namespace Loadwick {

namespace {

int openNumber()
{
    return open("/dev/null", O_RDONLY | O_CLOEXEC);
}

bool isOpenNumber(int number)
{
    return fcntl(number, F_GETFD) != -1;
}

/// What `make` returns while all three standard streams are closed.
template<typename Make>
auto withoutStandardStreams(Make make)
{
    constexpr std::array streams{STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO};
    std::array<FileDescriptor, streams.size()> kept;
    for (std::size_t index = 0; index < streams.size(); ++index) {
        kept[index] = FileDescriptor(fcntl(streams[index], F_DUPFD_CLOEXEC, 10));
        close(streams[index]);
    }
    auto made = make();
    for (std::size_t index = 0; index < streams.size(); ++index)
        if (kept[index].isOpen())
            dup2(kept[index].number(), streams[index]);
    return made;
}

} // namespace

TEST(FileDescriptorTest, ownsNothingAtFirst)
{
    const FileDescriptor none;
    EXPECT_FALSE(none.isOpen());
    EXPECT_EQ(none.number(), -1);
    EXPECT_FALSE(FileDescriptor(-1).isOpen());
}

TEST(FileDescriptorTest, closesOnDestruction)
{
    const int number = openNumber();
    {
        const FileDescriptor owner(number);
        EXPECT_TRUE(owner.isOpen());
        EXPECT_TRUE(isOpenNumber(number));
    }
    EXPECT_FALSE(isOpenNumber(number));
}

TEST(FileDescriptorTest, closesTheLowestNumberToo)
{
    const bool wasClosed = withoutStandardStreams([] {
        FileDescriptor lowest(openNumber());
        const int number = lowest.number();
        lowest.reset();
        return number == STDIN_FILENO && !isOpenNumber(STDIN_FILENO);
    });
    EXPECT_TRUE(wasClosed);
}

TEST(FileDescriptorTest, transfersOwnershipOnMove)
{
    const int number = openNumber();
    FileDescriptor first(number);
    FileDescriptor second(std::move(first));
    EXPECT_EQ(second.number(), number);
    EXPECT_FALSE(first.isOpen()); // NOLINT(bugprone-use-after-move)

    const int replaced = openNumber();
    FileDescriptor third(replaced);
    third = std::move(second);
    EXPECT_EQ(third.number(), number);
    EXPECT_FALSE(isOpenNumber(replaced));
    EXPECT_TRUE(isOpenNumber(number));
}

TEST(FileDescriptorTest, closesOnceAndPreservesErrno)
{
    FileDescriptor owner(openNumber());
    errno = ENOSPC;
    owner.reset();
    owner.reset();
    EXPECT_EQ(errno, ENOSPC);
    EXPECT_FALSE(owner.isOpen());
}

TEST(FileDescriptorTest, duplicatesClosedOnExecAndAboveTheStandardStreams)
{
    const FileDescriptor descriptor(openNumber());
    const FileDescriptor duplicate = descriptor.duplicate();
    ASSERT_TRUE(duplicate.isOpen());
    EXPECT_NE(duplicate.number(), descriptor.number());
    EXPECT_GT(duplicate.number(), STDERR_FILENO);
    EXPECT_EQ(fcntl(duplicate.number(), F_GETFD), FD_CLOEXEC);
}

TEST(FileDescriptorTest, duplicatesNothingOntoClosedStandardStreams)
{
    const FileDescriptor descriptor(openNumber());
    const FileDescriptor duplicate = withoutStandardStreams([&] { return descriptor.duplicate(); });
    EXPECT_GT(duplicate.number(), STDERR_FILENO);
}

TEST(FileDescriptorTest, duplicatesNothingAsNothing)
{
    EXPECT_FALSE(FileDescriptor().duplicate().isOpen());
}

TEST(FileDescriptorTest, survivesSelfAssignment)
{
    FileDescriptor owner(openNumber());
    const int number = owner.number();
    FileDescriptor &same = owner;
    owner = std::move(same);
    EXPECT_EQ(owner.number(), number);
    EXPECT_TRUE(isOpenNumber(number));
}

TEST(FileDescriptorTest, carriesBytesThroughAPipe)
{
    const Pipe pipe = Pipe::open();
    char byte = 0;
    ASSERT_EQ(write(pipe.writeEnd.number(), "x", 1), 1);
    ASSERT_EQ(read(pipe.readEnd.number(), &byte, 1), 1);
    EXPECT_EQ(byte, 'x');
}

TEST(FileDescriptorTest, opensPipesClosedOnExecAndAboveTheStandardStreams)
{
    const Pipe pipe = Pipe::open();
    for (const int end : {pipe.readEnd.number(), pipe.writeEnd.number()}) {
        EXPECT_EQ(fcntl(end, F_GETFD), FD_CLOEXEC);
        EXPECT_GT(end, STDERR_FILENO);
    }
}

TEST(FileDescriptorTest, opensNoPipeOnClosedStandardStreams)
{
    const Pipe pipe = withoutStandardStreams([] { return Pipe::open(); });
    EXPECT_GT(pipe.readEnd.number(), STDERR_FILENO);
    EXPECT_GT(pipe.writeEnd.number(), STDERR_FILENO);
}

TEST(FileDescriptorTest, opensPipesAsLargeAsTheSystemPermits)
{
#if defined(__linux__)
    int largest = 0;
    std::ifstream("/proc/sys/fs/pipe-max-size") >> largest;
    const Pipe pipe = Pipe::open();
    // An unprivileged user may have reached the limit on all pipes together: then one that is
    // opened now cannot be enlarged either.
    const Pipe plain = Pipe::forSignal();
    const int size = fcntl(pipe.readEnd.number(), F_GETPIPE_SZ);
    const int enlarged = fcntl(plain.readEnd.number(), F_SETPIPE_SZ, largest);
    EXPECT_GE(size, enlarged > 0 ? largest : fcntl(plain.readEnd.number(), F_GETPIPE_SZ));
#else
    GTEST_SKIP() << "this system does not report the size";
#endif
}

TEST(FileDescriptorTest, throwsTheReasonForAMissingPipe)
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

} // namespace Loadwick
