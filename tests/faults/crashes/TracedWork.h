#pragma once

#include <functional>

namespace Faults {

/// Performs `work` in a child process and kills it at the `stop`-th gate of a system call (from 1;
/// each call has two, one before and one after it). True when it was killed; false when the work
/// ended first, with all its calls before `stop`.
[[nodiscard]] bool isKilledAt(long stop, const std::function<void()> &work);

} // namespace Faults
