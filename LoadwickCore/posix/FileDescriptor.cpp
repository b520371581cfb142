#include "posix/FileDescriptor.h"

#include <array>
#include <cerrno>
#include <system_error>

#include <fcntl.h>
#include <unistd.h>

#if defined(__linux__)
#include <fstream>
#endif

namespace Loadwick {

namespace {

FileDescriptor aboveStandardStreams(FileDescriptor descriptor)
{
    if (descriptor.number() > STDERR_FILENO)
        return descriptor;
    FileDescriptor higher = descriptor.duplicate();
    // unreachable: the last descriptors would have to be those of the standard streams
    if (!higher.isOpen())
        throw std::system_error(errno, std::generic_category());
    return higher;
}

#if defined(__linux__)

constexpr int usualCapacity = 64 * 1024;

bool openEnds(std::array<int, 2> &ends) noexcept
{
    return pipe2(ends.data(), O_CLOEXEC) == 0;
}

int permittedCapacity()
{
    int capacity = 0;
    std::ifstream("/proc/sys/fs/pipe-max-size") >> capacity;
    return capacity;
}

// A user's pipes also share a limit, so a smaller size may work where the largest is refused.
void enlarge(int descriptor)
{
    for (int capacity = permittedCapacity(); capacity > usualCapacity; capacity /= 2)
        if (fcntl(descriptor, F_SETPIPE_SZ, capacity) >= 0)
            return;
}

#else

bool openEnds(std::array<int, 2> &ends) noexcept
{
    if (pipe(ends.data()) != 0)
        return false;
    for (const int end : ends)
        fcntl(end, F_SETFD, FD_CLOEXEC);
    return true;
}

void enlarge(int) {}

#endif

} // namespace

FileDescriptor &FileDescriptor::operator=(FileDescriptor &&other) noexcept
{
    if (this != &other) {
        reset();
        m_number = std::exchange(other.m_number, none);
    }
    return *this;
}

FileDescriptor FileDescriptor::duplicate() const noexcept
{
    return FileDescriptor(fcntl(m_number, F_DUPFD_CLOEXEC, STDERR_FILENO + 1));
}

void FileDescriptor::reset() noexcept
{
    const int number = std::exchange(m_number, none);
    if (number < 0)
        return;
    const int before = errno;
    // Never retried: after EINTR the number may already belong to another thread's file.
    close(number);
    errno = before;
}

Pipe Pipe::open()
{
    Pipe pipe = forSignal();
    enlarge(pipe.writeEnd.number());
    return pipe;
}

Pipe Pipe::forSignal()
{
    std::array<int, 2> ends{};
    if (!openEnds(ends))
        throw std::system_error(errno, std::generic_category());
    Pipe pipe{FileDescriptor(ends[0]), FileDescriptor(ends[1])};
    pipe.readEnd = aboveStandardStreams(std::move(pipe.readEnd));
    pipe.writeEnd = aboveStandardStreams(std::move(pipe.writeEnd));
    return pipe;
}

} // namespace Loadwick
