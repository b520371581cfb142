#include "faults/crashes/TracedWork.h"

#include <csignal>

#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

#include "text/Fatal.h"

namespace Faults {

namespace {

constexpr int syscallStop = SIGTRAP | 0x80; // with PTRACE_O_TRACESYSGOOD

int statusOf(pid_t child)
{
    int status = 0;
    if (waitpid(child, &status, 0) != child)
        Loadwick::fatalError("a traced child is lost");
    return status;
}

/// Lets the child run to its next stop and delivers the signal that stopped it.
int statusAtNextStop(pid_t child, int status)
{
    const bool isOwnSignal = WSTOPSIG(status) != syscallStop && WSTOPSIG(status) != SIGSTOP;
    const long signal = isOwnSignal ? WSTOPSIG(status) : 0;
    if (ptrace(PTRACE_SYSCALL, child, nullptr, signal) != 0)
        Loadwick::fatalError("a traced child cannot continue");
    return statusOf(child);
}

pid_t startStopped(const std::function<void()> &work)
{
    const pid_t child = fork();
    if (child < 0)
        Loadwick::fatalError("no process to trace");
    if (child == 0) {
        if (ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0)
            _exit(3);
        raise(SIGSTOP);
        work();
        raise(SIGKILL); // the calls of an ordinary exit do not count
    }
    return child;
}

} // namespace

bool isKilledAt(long stop, const std::function<void()> &work)
{
    const pid_t child = startStopped(work);
    int status = statusOf(child);
    if (!WIFSTOPPED(status))
        Loadwick::fatalError("this system does not permit tracing a child");
    ptrace(PTRACE_SETOPTIONS, child, nullptr, PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL);
    for (long stops = 0; stops < stop;) {
        status = statusAtNextStop(child, status);
        if (!WIFSTOPPED(status))
            return false;
        stops += WSTOPSIG(status) == syscallStop ? 1 : 0;
    }
    kill(child, SIGKILL);
    statusOf(child);
    return true;
}

} // namespace Faults
