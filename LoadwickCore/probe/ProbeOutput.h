#pragma once

#include <optional>
#include <string>

#include "probe/ProbeUsage.h"

namespace Loadwick {

/// What the command's JSON result record told.
struct ProbeOutput
{
    std::string sessionID; ///< never empty
    std::string result;    ///< the session's final answer; may be empty
    std::optional<ProbeUsage> usage;

    friend bool operator==(const ProbeOutput &, const ProbeOutput &) = default;
};

} // namespace Loadwick
