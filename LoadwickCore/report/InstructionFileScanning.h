#pragma once

#include <filesystem>

#include "report/InstructionFileSet.h"

namespace Loadwick {

/// Finds the instruction files of a repository. Blocking: call it off the interface thread.
class InstructionFileScanning
{
public:
    virtual ~InstructionFileScanning() = default;

    [[nodiscard]] virtual InstructionFileSet scan(const std::filesystem::path &repository) = 0;
};

} // namespace Loadwick
