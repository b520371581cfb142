#include "process/ChildSupervision.h"

#include <chrono>
#include <csignal>
#include <new>
#include <utility>

#include "posix/FileDescriptor.h"
#include "process/BoundedCall.h"
#include "process/StreamReaders.h"

namespace Loadwick::ChildSupervision {

namespace {

constexpr ChildProcess::Ending killed{SIGKILL, true};

struct StartedChild
{
    FileDescriptor standardOutput;
    FileDescriptor standardError;
    ChildProcess process;
};

// Our copies of the write ends close here, else no stream would ever end.
StartedChild startPiped(const Request &request)
{
    Pipe output = Pipe::open();
    Pipe error = request.capture == Capture::bothStreams ? Pipe::open() : Pipe{};
    const ChildStreams streams{output.writeEnd.number(), error.writeEnd.number()};
    return {std::move(output.readEnd), std::move(error.readEnd),
            ChildProcess::start(request.command, streams, request.shutdown)};
}

template<typename Make>
auto orStartFailed(Make make)
{
    try {
        return make();
    } catch (const std::system_error &error) {
        throw StartFailed(error.code());
    }
}

void startReaders(StreamReaders &readers, const StartedChild &child)
{
    readers.start(child.standardOutput, OutputBox::Stream::standardOutput);
    if (child.standardError.isOpen())
        readers.start(child.standardError, OutputBox::Stream::standardError);
}

// On a thread of its own, since the disk that holds the executable or the folder may not answer. A
// child that starts too late is killed there, since nobody owns it.
std::optional<StartedChild> startBefore(Deadline timeout, const Request &request)
{
    return callWithin(timeout - std::chrono::steady_clock::now(),
                      [request] { return orStartFailed([&] { return startPiped(request); }); });
}

// True when the child ended before `timeout`. Once its output is lost, waiting is pointless.
bool endsBefore(Deadline timeout, const ChildProcess &child, const OutputBox &box)
{
    const bool hasEnded = child.waitUntil(timeout, box.lossDescriptor());
    if (!hasEnded && box.ranOutOfMemory())
        throw std::bad_alloc();
    return hasEnded;
}

// True when the time-out found the child running. Without a limit on the wait for its death, a
// child that is stuck inside the system would block the caller forever.
bool stopAt(Deadline timeout, const ChildProcess &child, double killGraceSeconds,
            const OutputBox &box)
{
    if (endsBefore(timeout, child, box))
        return false;
    ProcessTermination::terminateThenKill(child, killGraceSeconds);
    (void)child.waitUntil(deadlineAfter(ChildProcess::survivalSeconds));
    return true;
}

ChildProcess::Ending endingOf(ChildProcess child)
{
    // unreachable: what survives SIGKILL is stuck inside the system
    if (!child.isRunning())
        return child.reap();
    ChildProcess::abandon(std::move(child));
    return killed;
}

} // namespace

Outcome run(const Request &request)
{
    StreamReaders readers =
        orStartFailed([&] { return StreamReaders(request.limits.captureLimit); });
    const Deadline timeout = deadlineAfter(request.limits.timeoutSeconds);
    std::optional<StartedChild> child = startBefore(timeout, request);
    if (!child)
        return {.ending = killed,
                .standardOutput = "",
                .standardError = "",
                .terminationRequested = true};
    startReaders(readers, *child);

    Outcome outcome;
    outcome.terminationRequested =
        stopAt(timeout, child->process, request.limits.killGraceSeconds, readers.box());
    outcome.readersTimedOut = !readers.finish(request.limits.readerGraceSeconds);
    if (outcome.terminationRequested)
        ProcessTermination::sweepGroup(child->process);
    outcome.ending = endingOf(std::move(child->process));
    outcome.standardOutput = readers.box().take(OutputBox::Stream::standardOutput);
    outcome.standardError = readers.box().take(OutputBox::Stream::standardError);
    return outcome;
}

} // namespace Loadwick::ChildSupervision
