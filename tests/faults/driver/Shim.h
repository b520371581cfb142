#pragma once

#include "faults/shim/FaultPlan.h"

/// The preloaded library, as the driver reaches it.
namespace Faults::Shim {

/// Restarts this program with the library preloaded, unless it already is. Programs
/// started from this one do not get it.
void require(char **arguments);

void arm(const Plan &plan);
[[nodiscard]] Tally disarm();
void shiftClock(long seconds);

} // namespace Faults::Shim
