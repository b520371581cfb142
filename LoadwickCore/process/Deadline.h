#pragma once

#include <algorithm>
#include <chrono>

namespace Loadwick {

/// A moment on the monotonic clock.
using Deadline = std::chrono::steady_clock::time_point;

/// The moment `seconds` from now. A negative duration or NaN counts as 0, and anything above a year
/// as a year, so that no setting can overflow the clock.
[[nodiscard]] inline Deadline deadlineAfter(double seconds)
{
    constexpr double year = 365.0 * 24 * 60 * 60;
    const double bounded = seconds > 0 ? std::min(seconds, year) : 0.0;
    return std::chrono::steady_clock::now() +
           std::chrono::duration_cast<std::chrono::steady_clock::duration>(
               std::chrono::duration<double>(bounded));
}

/// Milliseconds until `deadline` for a system call that waits, rounded up, at most `limit`.
[[nodiscard]] inline int millisecondsUntil(Deadline deadline, std::chrono::milliseconds limit)
{
    const auto left =
        std::chrono::ceil<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
    return static_cast<int>(std::clamp(left, std::chrono::milliseconds(0), limit).count());
}

} // namespace Loadwick
