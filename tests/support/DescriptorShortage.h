#pragma once

#include <sys/resource.h>
#include <unistd.h>

#include "posix/FileDescriptor.h"

namespace Loadwick {

/// While it lives, this process can open nothing.
class DescriptorShortage
{
public:
    DescriptorShortage()
    {
        getrlimit(RLIMIT_NOFILE, &m_usual);
        rlimit tight = m_usual;
        tight.rlim_cur = static_cast<rlim_t>(FileDescriptor(dup(0)).number()); // the next free one
        setrlimit(RLIMIT_NOFILE, &tight);
    }
    ~DescriptorShortage() { setrlimit(RLIMIT_NOFILE, &m_usual); }

    DescriptorShortage(const DescriptorShortage &) = delete;
    DescriptorShortage &operator=(const DescriptorShortage &) = delete;

private:
    rlimit m_usual{};
};

} // namespace Loadwick
