#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "probe/SelfReportedSlab.h"
#include "probe/TotalSource.h"

namespace Loadwick {

/// What one headless session yielded.
struct ProbeResult
{
    std::string sessionID;
    std::int64_t authoritativeTotal; ///< startup tokens
    TotalSource totalSource;
    std::vector<SelfReportedSlab> selfReportedSlabs; ///< in output order
    double duration; ///< seconds from launch to the parsed result; the transcript search excluded
    std::string resolvedCLIPath; ///< the executable that was run, as text

    friend bool operator==(const ProbeResult &, const ProbeResult &) = default;
};

} // namespace Loadwick
