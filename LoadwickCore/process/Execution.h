#pragma once

#include <cstdint>
#include <string>

namespace Loadwick {

/// The outcome of one child process.
struct Execution
{
    std::int32_t exitCode = 0;    ///< exit status, or the signal's number when one ended it
    std::string standardOutput;   ///< UTF-8; empty when it was not, or exceeded the capture limit
    std::string standardError;    ///< the same
    bool timedOut = false;        ///< the time-out fired and a signal ended the child
    bool readersTimedOut = false; ///< a stream was still open when its readers had to stop
    bool terminationRequested = false; ///< the time-out fired, however the child then ended

    friend bool operator==(const Execution &, const Execution &) = default;
};

} // namespace Loadwick
