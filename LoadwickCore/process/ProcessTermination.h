#pragma once

#include "process/ChildProcess.h"

/// Stops a child that ran too long, and what it leaves behind.
namespace Loadwick::ProcessTermination {

inline constexpr double sweepGraceSeconds = 0.2;

/// Asks the child itself to end (SIGTERM) and kills it when it still runs `graceSeconds` later.
/// Does not reap, and does not wait for the kill. Nothing happens to a child that has ended.
void terminateThenKill(const ChildProcess &child, double graceSeconds);

/// Asks whatever is left of the child's group to end, and kills it `sweepGraceSeconds` later. The
/// child must not have been reaped: its number could be somebody else's.
void sweepGroup(const ChildProcess &child);

} // namespace Loadwick::ProcessTermination
