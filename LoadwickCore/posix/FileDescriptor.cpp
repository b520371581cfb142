#include "posix/FileDescriptor.h"

#include <cerrno>

#include <fcntl.h>
#include <unistd.h>

namespace Loadwick {

FileDescriptor &FileDescriptor::operator=(FileDescriptor &&other) noexcept
{
    if (this != &other) {
        reset();
        m_number = std::exchange(other.m_number, -1);
    }
    return *this;
}

FileDescriptor FileDescriptor::duplicate() const noexcept
{
    return FileDescriptor(fcntl(m_number, F_DUPFD_CLOEXEC, STDERR_FILENO + 1));
}

void FileDescriptor::reset() noexcept
{
    const int number = std::exchange(m_number, -1);
    if (number < 0)
        return;
    const int before = errno;
    // Never repeated: after EINTR the number may already belong to another thread's file.
    close(number);
    errno = before;
}

} // namespace Loadwick
