#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <system_error>

#include "process/ChildProcess.h"
#include "process/Shutdown.h"

/// Runs one child under deadlines, so that neither it nor anything it starts can block the caller.
namespace Loadwick::ChildSupervision {

enum class Capture
{
    bothStreams,
    standardOutputOnly ///< standard error goes to the null device
};

struct Limits
{
    double timeoutSeconds;     ///< from before its start
    double killGraceSeconds;   ///< between SIGTERM and SIGKILL
    double readerGraceSeconds; ///< for the streams, after the child's end
    std::size_t captureLimit;  ///< bytes kept of each stream
};

struct Request
{
    ChildCommand command;
    Limits limits;
    Capture capture = Capture::bothStreams;
    std::shared_ptr<Shutdown> shutdown; ///< may be null
};

struct Outcome
{
    /// By SIGKILL too for a child that survived it and was abandoned, or that did not start in
    /// time.
    ChildProcess::Ending ending;
    std::optional<std::string> standardOutput; ///< bytes; nothing when they exceeded the limit
    std::optional<std::string> standardError;
    bool terminationRequested = false; ///< the time-out found the child running, or starting
    bool readersTimedOut = false;      ///< a stream was still open when its reader had to stop
};

/// The child could not be started: no pipe, executable or folder, or the program is ending.
class StartFailed : public std::system_error
{
public:
    using std::system_error::system_error;
};

/// Blocking, for at most all durations of the limits, a second for the readers,
/// `ChildProcess::survivalSeconds` and `ProcessTermination::sweepGraceSeconds` together. Throws
/// `StartFailed`, and `std::system_error` or `std::bad_alloc` when threads or memory run out; the
/// child is then killed immediately.
[[nodiscard]] Outcome run(const Request &request);

} // namespace Loadwick::ChildSupervision
