#pragma once

#include <memory>
#include <string>
#include <vector>

#include "probe/ProbeRunner.h"
#include "process/ChildProcess.h"

namespace Loadwick {

/// The path of a program that behaves badly on request; `hostile/main.cpp` lists its verbs.
[[nodiscard]] std::string hostileChildPath();

/// Launches that program in "/", without an environment, with a time-out and graces that let a
/// child of a slow machine come far enough and still end soon.
[[nodiscard]] ProbeRunner::Launch hostileLaunch(std::vector<std::string> verbAndArguments);

/// Starts that program with a pipe for its output and comes back when it has said its first word:
/// its handlers stand by then.
[[nodiscard]] ChildProcess startHostileChild(std::vector<std::string> verbAndArguments,
                                             std::shared_ptr<Shutdown> shutdown = nullptr);

/// The most seconds that a launch may take, whatever the child does.
[[nodiscard]] double longestSeconds(const ProbeRunner::Launch &launch);

} // namespace Loadwick
