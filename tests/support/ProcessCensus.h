#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <iosfwd>

namespace Loadwick {

/// The resources that this process holds at one moment, to find leaks.
struct ProcessCensus
{
    std::size_t descriptors; ///< open ones
    std::size_t threads;
    std::size_t zombies; ///< children that ended and were not reaped

    [[nodiscard]] static ProcessCensus now();

    /// No more of anything than `limit`. Equality is too strict: a thread may have been ending when
    /// the limit was taken.
    [[nodiscard]] bool isWithin(const ProcessCensus &limit) const noexcept;

    friend bool operator==(const ProcessCensus &, const ProcessCensus &) = default;
};

/// How often the threads of this process have slept so far, and so were woken; those of ended
/// threads no longer count.
[[nodiscard]] long wakeCount();

/// Text for a failed expectation.
void PrintTo(const ProcessCensus &census, std::ostream *stream);

/// Polls until `holds` is true or `limit` has passed; returns whether it was. For conditions that
/// another thread or process brings about.
[[nodiscard]] bool eventually(const std::function<bool()> &holds,
                              std::chrono::milliseconds limit = std::chrono::seconds(10));

} // namespace Loadwick
