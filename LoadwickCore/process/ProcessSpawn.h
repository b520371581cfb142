#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include <sys/types.h>

#include "posix/FileDescriptor.h"
#include "posix/ProcessContext.h"

namespace Loadwick {

/// A child process to start.
struct ChildCommand
{
    std::string executable;             ///< a path, from this process's folder; argument 0 too
    std::vector<std::string> arguments; ///< after argument 0
    Environment environment;            ///< complete
    std::optional<std::filesystem::path> workingFolder; ///< this process's own when absent
};

/// A child's standard streams; the null device when there is no descriptor.
struct ChildStreams
{
    int standardOutput = FileDescriptor::none;
    int standardError = FileDescriptor::none;
    int standardInput = FileDescriptor::none;
};

/// Starts a process as the leader of a session and group of its own, with no terminal, no
/// descriptor but the three standard ones, an empty signal mask and default dispositions. The cost
/// does not depend on the size of this process. Throws `std::system_error` with the system's
/// reason, also when the executable cannot be run or the folder cannot be entered.
[[nodiscard]] pid_t spawnSessionLeader(const ChildCommand &command, const ChildStreams &streams);

} // namespace Loadwick
