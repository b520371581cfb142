#include "posix/FileDescriptor.h"

#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <gtest/gtest.h>
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

} // namespace

TEST(FileDescriptorTest, ownsNothingAtFirst)
{
    const FileDescriptor none;
    EXPECT_FALSE(none.isOpen());
    EXPECT_EQ(none.number(), -1);
    EXPECT_FALSE(FileDescriptor(-1).isOpen());
}

TEST(FileDescriptorTest, closesAtItsEnd)
{
    const int number = openNumber();
    {
        const FileDescriptor owner(number);
        EXPECT_TRUE(owner.isOpen());
        EXPECT_TRUE(isOpenNumber(number));
    }
    EXPECT_FALSE(isOpenNumber(number));
}

TEST(FileDescriptorTest, handsOverWhatItOwns)
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

TEST(FileDescriptorTest, closesOnceAndKeepsTheErrorOfTheCallBefore)
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

TEST(FileDescriptorTest, duplicatesNothingToNone)
{
    EXPECT_FALSE(FileDescriptor().duplicate().isOpen());
}

TEST(FileDescriptorTest, survivesBeingHandedToItself)
{
    FileDescriptor owner(openNumber());
    const int number = owner.number();
    FileDescriptor &same = owner;
    owner = std::move(same);
    EXPECT_EQ(owner.number(), number);
    EXPECT_TRUE(isOpenNumber(number));
}

} // namespace Loadwick
