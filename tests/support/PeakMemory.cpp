#include "support/PeakMemory.h"

#include <fstream>
#include <string>

#include <malloc.h>

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
    fatalError("the resident memory is not to be had");
}

} // namespace

PeakMemory::PeakMemory()
{
    malloc_trim(0);
    // 5 sets the peak back to what is resident now.
    std::ofstream("/proc/self/clear_refs") << "5" << std::flush;
    m_atStart = statusBytes("VmRSS:");
}

std::size_t PeakMemory::growthInBytes() const
{
    const std::size_t peak = statusBytes("VmHWM:");
    return peak > m_atStart ? peak - m_atStart : 0;
}

} // namespace Loadwick
