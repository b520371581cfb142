#include "faults/crashes/TracedWork.h"

#include <csignal>

#include <sys/ptrace.h>
#include <sys/syscall.h>
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

/// Calls `atEach` at every stop at a system call until it returns false or the work has ended; then
/// kills the child. True when the work had not ended.
bool isCutShort(const std::function<void()> &work, const std::function<bool(pid_t)> &atEach)
{
    const pid_t child = startStopped(work);
    int status = statusOf(child);
    if (!WIFSTOPPED(status))
        Loadwick::fatalError("this system does not permit tracing a child");
    ptrace(PTRACE_SETOPTIONS, child, nullptr, PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL);
    do {
        status = statusAtNextStop(child, status);
        if (!WIFSTOPPED(status))
            return false;
    } while (WSTOPSIG(status) != syscallStop || atEach(child));
    kill(child, SIGKILL);
    statusOf(child);
    return true;
}

std::optional<int> syncedBy(const __ptrace_syscall_info &entry)
{
    if (entry.entry.nr != SYS_fsync && entry.entry.nr != SYS_fdatasync)
        return std::nullopt;
    return static_cast<int>(entry.entry.args[0]);
}

} // namespace

bool isKilledAt(long stop, const std::function<void()> &work)
{
    long stops = 0;
    return isCutShort(work, [&](pid_t) { return ++stops < stop; });
}

void traceCalls(const std::function<void()> &work,
                const std::function<void(const ReturnedCall &)> &afterEach)
{
    std::optional<int> synced;
    isCutShort(work, [&](pid_t child) {
        __ptrace_syscall_info info = {};
        if (ptrace(PTRACE_GET_SYSCALL_INFO, child, sizeof info, &info) <= 0)
            Loadwick::fatalError("this system does not tell which call a child makes");
        if (info.op == PTRACE_SYSCALL_INFO_ENTRY)
            synced = syncedBy(info);
        else
            afterEach({child, info.exit.is_error != 0 ? std::nullopt : synced});
        return true;
    });
}

} // namespace Faults
