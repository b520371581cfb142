#pragma once

#include <sys/types.h>

#include "process/ChildCommand.h"

namespace Loadwick {

/// Starts a process as the leader of a session and group of its own, without a terminal, without
/// any descriptor but the three standard ones, with an empty signal mask and default dispositions.
/// The cost does not depend on this process's size. Throws `std::system_error` with the system's
/// reason, also when the executable cannot be run or the folder not be entered.
[[nodiscard]] pid_t spawnSessionLeader(const ChildCommand &command, const ChildStreams &streams);

} // namespace Loadwick
