#pragma once

#include <atomic>
#include <cstdint>

namespace Loadwick {

/// What the core has asked of the system since the program began, and the lines that it has parsed.
/// The linker leads the core's calls through here; calls inside other libraries do not count.
struct CallCounters
{
    std::atomic<std::int64_t> foldersListed = 0;
    std::atomic<std::int64_t> entriesSeen = 0; ///< "." and ".." among them
    std::atomic<std::int64_t> filesOpened = 0; ///< also folders and devices
    std::atomic<std::int64_t> pathsLookedAt = 0;
    std::atomic<std::int64_t> pathsResolved = 0; ///< folders opened as a starting point among them
    std::atomic<std::int64_t> linesParsed = 0;   ///< of an answer, and those read as JSON
    std::atomic<std::int64_t> reads = 0;
    std::atomic<std::int64_t> bytesRead = 0;

    /// Those of this process.
    [[nodiscard]] static CallCounters &ofProcess() noexcept;

    /// Forgets everything that was counted.
    void restart() noexcept;
};

} // namespace Loadwick
