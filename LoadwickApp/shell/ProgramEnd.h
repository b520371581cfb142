#pragma once

#include <memory>

#include "process/Shutdown.h"

/// How the program ends: within one second and without its child processes, whatever is blocked.
namespace Loadwick::ProgramEnd {

/// Sets the signal dispositions that the program needs, whatever it inherited: ended children are
/// reported (SIGCHLD), a closed pipe is an error of write() (SIGPIPE), and SIGTERM, SIGINT and
/// SIGHUP end the program with the status that a shell gives to a death by that signal. The ending
/// runs on its own thread, so that it works while the interface thread hangs.
/// Call it once, before any other thread is started.
void followSignals(std::shared_ptr<Shutdown> shutdown);

/// Stops the child processes, within half a second, and exits at once: no destructor runs and no
/// thread is joined, since any of them may block for ever. Callable on any thread.
[[noreturn]] void leave(Shutdown &shutdown, int status);

/// Makes another thread end the program within one second from now, so that the caller can clean up
/// first. Exits at once if no thread can be started.
void begin(const std::shared_ptr<Shutdown> &shutdown, int status);

} // namespace Loadwick::ProgramEnd
