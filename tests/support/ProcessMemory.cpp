#include "support/ProcessMemory.h"

#include <fstream>
#include <string>

#include <malloc.h>
#include <unistd.h>

#include "text/Fatal.h"

namespace Loadwick {

namespace {

/// A figure of /proc/self/status, which counts in KiB.
std::size_t statusBytes(const std::string &name)
{
    std::ifstream status("/proc/self/status");
    std::string word;
    while (status >> word) {
        std::size_t kibibytes = 0;
        if (word == name && status >> kibibytes)
            return kibibytes * 1024;
    }
    fatalError("the resident memory is unknown");
}

} // namespace

PeakMemory::PeakMemory()
{
    malloc_trim(0);
    // 5 resets the peak to what is resident now.
    std::ofstream("/proc/self/clear_refs") << "5" << std::flush;
    m_atStart = statusBytes("VmRSS:");
}

std::size_t PeakMemory::growthInBytes() const
{
    const std::size_t peak = statusBytes("VmHWM:");
    return peak > m_atStart ? peak - m_atStart : 0;
}

MemoryShortage::MemoryShortage(rlim_t spareBytes)
{
    rlim_t pages = 0;
    std::ifstream("/proc/self/statm") >> pages;
    getrlimit(RLIMIT_AS, &m_usual);
    const rlim_t bytes = pages * static_cast<rlim_t>(sysconf(_SC_PAGESIZE)) + spareBytes;
    const rlimit scarce{bytes, m_usual.rlim_max};
    setrlimit(RLIMIT_AS, &scarce);
}

MemoryShortage::~MemoryShortage()
{
    setrlimit(RLIMIT_AS, &m_usual);
}

} // namespace Loadwick
