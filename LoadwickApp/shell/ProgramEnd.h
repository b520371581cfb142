#pragma once

#include <memory>

#include "process/Shutdown.h"

/// How the program ends: within one second and without its child processes, whatever is blocked.
namespace Loadwick::ProgramEnd {

/// Stops the child processes, within half a second, and leaves at once: no destructor runs and no
/// thread is waited for, since any of them may be blocked for ever. Callable on every thread.
[[noreturn]] void leave(Shutdown &shutdown, int status);

/// Sees to it from another thread that the program is gone within one second from now, so that the
/// caller can tidy up first. Leaves at once when no thread is to be had.
void begin(const std::shared_ptr<Shutdown> &shutdown, int status);

} // namespace Loadwick::ProgramEnd
