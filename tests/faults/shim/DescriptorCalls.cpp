// Calls on descriptors.

#include <cerrno>
#include <cstdarg>

#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "faults/shim/Decision.h"

using Faults::behind;
using Faults::Call;
using Faults::fails;
using Faults::opened;

extern "C" {

ssize_t read(int descriptor, void *buffer, size_t size)
{
    static auto *const next = behind(read, "read");
    if (fails(Call::read, descriptor))
        return -1;
    const ssize_t count = next(descriptor, buffer, size);
    if (count >= 0)
        errno = EINTR; // a call that succeeds may leave any
    return count;
}

ssize_t write(int descriptor, const void *buffer, size_t size)
{
    static auto *const next = behind(write, "write");
    return fails(Call::write, descriptor) ? -1 : next(descriptor, buffer, size);
}

off_t lseek(int descriptor, off_t offset, int whence) noexcept
{
    static auto *const next = behind(lseek, "lseek");
    return fails(Call::lseek, descriptor) ? -1 : next(descriptor, offset, whence);
}

// Even a failing close closes the descriptor.
int close(int descriptor)
{
    static auto *const next = behind(close, "close");
    const bool isToFail = fails(Call::close, descriptor);
    const int reason = errno;
    const int outcome = next(descriptor);
    if (!isToFail)
        return outcome;
    errno = reason;
    return -1;
}

int fstat(int descriptor, struct stat *status) noexcept
{
    static auto *const next = behind(fstat, "fstat");
    return fails(Call::fstat, descriptor) ? -1 : next(descriptor, status);
}

int fsync(int descriptor)
{
    static auto *const next = behind(fsync, "fsync");
    return fails(Call::fsync, descriptor) ? -1 : next(descriptor);
}

int fdatasync(int descriptor)
{
    static auto *const next = behind(fdatasync, "fdatasync");
    return fails(Call::fsync, descriptor) ? -1 : next(descriptor);
}

int flock(int descriptor, int operation) noexcept
{
    static auto *const next = behind(flock, "flock");
    return fails(Call::flock, descriptor) ? -1 : next(descriptor, operation);
}

int fchmod(int descriptor, mode_t mode) noexcept
{
    static auto *const next = behind(fchmod, "fchmod");
    return fails(Call::fchmod, descriptor) ? -1 : next(descriptor, mode);
}

int dup(int descriptor) noexcept
{
    static auto *const next = behind(dup, "dup");
    return fails(Call::dup, descriptor) ? -1 : opened(next(descriptor));
}

int dup2(int descriptor, int target) noexcept
{
    static auto *const next = behind(dup2, "dup2");
    return fails(Call::dup, descriptor) ? -1 : next(descriptor, target);
}

int fcntl(int descriptor, int command, ...)
{
    static auto *const next = behind(fcntl, "fcntl");
    va_list rest;
    va_start(rest, command);
    void *const argument = va_arg(rest, void *);
    va_end(rest);
    if (fails(Call::fcntl, descriptor))
        return -1;
    const int outcome = next(descriptor, command, argument);
    return command == F_DUPFD || command == F_DUPFD_CLOEXEC ? opened(outcome) : outcome;
}

int fcntl64(int descriptor, int command, ...)
{
    va_list rest;
    va_start(rest, command);
    void *const argument = va_arg(rest, void *);
    va_end(rest);
    return fcntl(descriptor, command, argument);
}

int pipe(int *ends) noexcept
{
    static auto *const next = behind(pipe, "pipe");
    return fails(Call::pipe) ? -1 : next(ends);
}

int pipe2(int *ends, int flags) noexcept
{
    static auto *const next = behind(pipe2, "pipe2");
    if (fails(Call::pipe) || next(ends, flags) != 0)
        return -1;
    opened(ends[0]);
    opened(ends[1]);
    return 0;
}

int poll(pollfd *descriptors, nfds_t count, int milliseconds)
{
    static auto *const next = behind(poll, "poll");
    return fails(Call::poll) ? -1 : next(descriptors, count, milliseconds);
}
}
