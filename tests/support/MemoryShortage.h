#pragma once

#include <fstream>

#include <sys/resource.h>
#include <unistd.h>

namespace Loadwick {

/// While it lives this program gets little more memory than it had: `spareBytes`. The allocator may
/// still hold some that was freed, so what is to fail must want much.
class MemoryShortage
{
public:
    explicit MemoryShortage(rlim_t spareBytes)
    {
        rlim_t pages = 0;
        std::ifstream("/proc/self/statm") >> pages;
        getrlimit(RLIMIT_AS, &m_usual);
        const rlim_t bytes = pages * static_cast<rlim_t>(sysconf(_SC_PAGESIZE)) + spareBytes;
        const rlimit scarce{bytes, m_usual.rlim_max};
        setrlimit(RLIMIT_AS, &scarce);
    }
    ~MemoryShortage() { setrlimit(RLIMIT_AS, &m_usual); }
    MemoryShortage(const MemoryShortage &) = delete;
    MemoryShortage &operator=(const MemoryShortage &) = delete;

private:
    rlimit m_usual{};
};

} // namespace Loadwick
