#pragma once

#include <functional>

namespace Faults {

/// Performs `work` in a child process and kills it at its `stop`-th stop at a system call (from
/// 1; each call has two, on entry and on exit). True when it was killed; false when the work ended
/// before that.
[[nodiscard]] bool isKilledAt(long stop, const std::function<void()> &work);

} // namespace Faults
