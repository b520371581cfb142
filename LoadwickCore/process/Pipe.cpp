#include "process/Pipe.h"

#include <array>
#include <cerrno>
#include <system_error>
#include <utility>

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
    // not taken: the last descriptors would have to be those of the standard streams
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

// One user's pipes together are limited too, so the largest may be refused and a smaller one not.
void enlarge(int descriptor)
{
    for (int capacity = permittedCapacity(); capacity > usualCapacity; capacity /= 2)
        if (fcntl(descriptor, F_SETPIPE_SZ, capacity) >= 0)
            return;
}

int capacityOf(int descriptor) noexcept
{
    const int capacity = fcntl(descriptor, F_GETPIPE_SZ);
    return capacity < 0 ? 0 : capacity;
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

int capacityOf(int) noexcept
{
    return 0;
}

#endif

} // namespace

Pipe Pipe::open()
{
    std::array<int, 2> ends{};
    if (!openEnds(ends))
        throw std::system_error(errno, std::generic_category());
    Pipe pipe{FileDescriptor(ends[0]), FileDescriptor(ends[1])};
    pipe.readEnd = aboveStandardStreams(std::move(pipe.readEnd));
    pipe.writeEnd = aboveStandardStreams(std::move(pipe.writeEnd));
    enlarge(pipe.writeEnd.number());
    return pipe;
}

int Pipe::capacity() const noexcept
{
    return capacityOf(readEnd.number());
}

} // namespace Loadwick
