#pragma once

#include <atomic>
#include <cstdint>

namespace Loadwick {

/// The core's system calls and parsed lines since the program began. The linker routes the core's
/// calls through here; calls inside other libraries do not count.
struct CallCounters
{
    std::atomic<std::int64_t> foldersListed = 0;
    std::atomic<std::int64_t> entriesSeen = 0; ///< "." and ".." included
    std::atomic<std::int64_t> filesOpened = 0; ///< folders and devices included
    std::atomic<std::int64_t> pathsLookedAt = 0;
    std::atomic<std::int64_t> pathsResolved = 0; ///< folders opened as a starting point included
    std::atomic<std::int64_t> linesParsed = 0;   ///< of an answer, and those read as JSON
    std::atomic<std::int64_t> reads = 0;
    std::atomic<std::int64_t> bytesRead = 0;

    /// The counters of this process.
    [[nodiscard]] static CallCounters &ofProcess() noexcept;

    /// Resets all counts.
    void restart() noexcept;
};

} // namespace Loadwick
