#pragma once

#include <functional>
#include <optional>

#include <sys/types.h>

namespace Faults {

/// Performs `work` in a child process and kills it at its `stop`-th stop at a system call (from
/// 1; each call has two, on entry and on exit). True when it was killed; false when the work ended
/// before that.
[[nodiscard]] bool isKilledAt(long stop, const std::function<void()> &work);

/// A system call of traced work.
struct ReturnedCall
{
    pid_t process;
    std::optional<int> synced; ///< the descriptor, if it synced one
};

/// Performs `work` in a child process and calls `afterEach` while the child is stopped at the
/// return of a system call, whether that succeeded or not.
void traceCalls(const std::function<void()> &work,
                const std::function<void(const ReturnedCall &)> &afterEach);

} // namespace Faults
