#pragma once

#include <filesystem>

#include "probe/ProbeResult.h"

namespace Loadwick {

/// Measures one repository. Blocking: call it off the interface thread.
class ProbeRunning
{
public:
    virtual ~ProbeRunning() = default;

    /// Throws `ProbeError`; another exception counts as unreadable output to the caller.
    [[nodiscard]] virtual ProbeResult run(const std::filesystem::path &repository) = 0;
};

} // namespace Loadwick
