#pragma once

#include <cstddef>

#include <sys/resource.h>

namespace Loadwick {

/// The greatest resident memory of this process since the object was made, less what was resident
/// then. Linux only; sanitizers quarantine freed memory and spoil the figure.
class PeakMemory
{
public:
    PeakMemory();

    [[nodiscard]] std::size_t growthInBytes() const;

private:
    std::size_t m_atStart;
};

/// While it lives, this process gets at most `spareBytes` more memory than it had. The allocator
/// may still hold freed memory, so a request that must fail has to be large.
class MemoryShortage
{
public:
    explicit MemoryShortage(rlim_t spareBytes);
    ~MemoryShortage();

    MemoryShortage(const MemoryShortage &) = delete;
    MemoryShortage &operator=(const MemoryShortage &) = delete;

private:
    rlimit m_usual{};
};

} // namespace Loadwick
