#pragma once

#include <functional>

namespace Faults {

/// Performs `work` in a child process and kills that as it stands at the `stop`-th gate of a system
/// call (from 1; each call has two, one before and one behind it). True when it was killed; false
/// when the work was done before. Every call of the work then lies before `stop`.
[[nodiscard]] bool isKilledAt(long stop, const std::function<void()> &work);

} // namespace Faults
