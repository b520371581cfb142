#include "probe/FileDescriptor.h"

#include <cerrno>

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
