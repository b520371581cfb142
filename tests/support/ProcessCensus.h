#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <iosfwd>

namespace Loadwick {

/// What this process holds at one moment, to tell whether a piece of work gave everything back.
struct ProcessCensus
{
    std::size_t descriptors; ///< open ones
    std::size_t threads;
    std::size_t zombies; ///< children that ended and were not reaped

    [[nodiscard]] static ProcessCensus now();

    /// No more of anything than `limit`. A thread that was just ending when the limit was taken
    /// makes equality too strict.
    [[nodiscard]] bool isWithin(const ProcessCensus &limit) const noexcept;

    friend bool operator==(const ProcessCensus &, const ProcessCensus &) = default;
};

/// Text for a failed expectation.
void PrintTo(const ProcessCensus &census, std::ostream *stream);

/// Looks again and again until `holds` does or `limit` has passed; whether it did. For what another
/// thread or process brings about in its own time.
[[nodiscard]] bool eventually(const std::function<bool()> &holds,
                              std::chrono::milliseconds limit = std::chrono::seconds(10));

} // namespace Loadwick
