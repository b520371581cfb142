#pragma once

#include <memory>
#include <string>
#include <vector>

#include "probe/ProbeRunner.h"
#include "process/ChildProcess.h"

namespace Loadwick {

/// The path of a program that misbehaves on request; `hostile/main.cpp` lists its verbs.
[[nodiscard]] std::string hostileChildPath();

/// Launches that program in "/" without an environment. Its time-out and graces are short, but long
/// enough for a slow machine.
[[nodiscard]] ProbeRunner::Launch hostileLaunch(std::vector<std::string> verbAndArguments);

/// Starts that program with a pipe for its output and returns after its first byte of output, when
/// its signal handlers are installed.
[[nodiscard]] ChildProcess startHostileChild(std::vector<std::string> verbAndArguments,
                                             std::shared_ptr<Shutdown> shutdown = nullptr);

/// The most seconds that a launch may take, whatever the child does.
[[nodiscard]] double longestSeconds(const ProbeRunner::Launch &launch);

} // namespace Loadwick
