#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "posix/FileDescriptor.h"
#include "posix/ProcessContext.h"

namespace Loadwick {

/// What a child process is started with. Its standard input is always the null device.
struct ChildCommand
{
    std::string executable;             ///< a path, from this process's folder; argument 0 too
    std::vector<std::string> arguments; ///< after argument 0
    Environment environment;            ///< complete
    std::optional<std::filesystem::path> workingFolder; ///< this process's own when absent
};

/// Where a child's output goes; the null device when there is no descriptor.
struct ChildStreams
{
    int standardOutput = FileDescriptor::none;
    int standardError = FileDescriptor::none;
};

} // namespace Loadwick
