#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

#include "faults/driver/Operation.h"

namespace Faults {

/// One operation, performed in a process of its own in an empty home folder, and judged there.
struct Trial
{
    const OperationKind &kind;
    std::optional<Fault> fault = {};
    /// Run in the child, before any preparation and after the operation.
    std::function<void()> before = {};
    std::function<void()> after = {};
    /// Run in the parent once the child has started.
    std::function<void(int processID)> meanwhile = {};
    double limitSeconds = 30;

    struct Verdict
    {
        Tally tally;
        std::optional<std::string> problem;
    };

    /// Counts every call and makes only those of `fault` fail. Crashes and endless waits are
    /// problems too.
    [[nodiscard]] Verdict run(const std::filesystem::path &workFolder) const;
};

} // namespace Faults
