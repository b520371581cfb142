#pragma once

#include <memory>

#include "process/Shutdown.h"

/// How the program answers the system's signals.
namespace Loadwick::ProgramSignals {

/// Gives the program the dispositions that it needs, whatever it inherited: ended children are
/// reported (SIGCHLD), a closed pipe is an error of write() (SIGPIPE), and SIGTERM, SIGINT and
/// SIGHUP end the program with the status that a shell gives to a death by that signal. The ending
/// runs on a thread of its own, so that it works while the interface thread hangs.
/// To be called once, before any other thread is started.
void install(std::shared_ptr<Shutdown> shutdown);

} // namespace Loadwick::ProgramSignals
