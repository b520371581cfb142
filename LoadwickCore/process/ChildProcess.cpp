#include "process/ChildProcess.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <exception>
#include <system_error>
#include <thread>
#include <utility>

#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#if defined(__linux__)
#include <sys/syscall.h>
#endif

namespace Loadwick {

namespace {

#if defined(__linux__)

FileDescriptor exitHandle(pid_t child) noexcept
{
    return FileDescriptor(static_cast<int>(syscall(SYS_pidfd_open, child, 0)));
}

#else

FileDescriptor exitHandle(pid_t) noexcept
{
    return FileDescriptor();
}

#endif

bool hasEnded(pid_t child) noexcept
{
    siginfo_t found{};
    int result = 0;
    do
        result = waitid(P_PID, static_cast<id_t>(child), &found, WEXITED | WNOHANG | WNOWAIT);
    while (result != 0 && errno == EINTR);
    return result != 0 || found.si_pid == child;
}

/// How a child ended, once it has; all zero for a process that is not, or no longer, our child.
siginfo_t reapedEnd(pid_t processID) noexcept
{
    siginfo_t found{};
    while (waitid(P_PID, static_cast<id_t>(processID), &found, WEXITED) != 0 && errno == EINTR) {
    }
    return found;
}

} // namespace

ExitWatch::ExitWatch(pid_t child) noexcept : m_child(child), m_handle(exitHandle(child)) {}

bool ExitWatch::waitUntil(Deadline deadline, int interruption) const
{
    using namespace std::chrono_literals;
    const std::chrono::milliseconds longestPause = m_handle.isOpen() ? 60s : 10ms;
    std::array waited{pollfd{m_handle.number(), POLLIN, 0}, pollfd{interruption, POLLIN, 0}};
    while (!hasEnded(m_child)) {
        if (waited[1].revents != 0 || std::chrono::steady_clock::now() >= deadline)
            return false;
        poll(waited.data(), waited.size(), millisecondsUntil(deadline, longestPause));
    }
    return true;
}

ChildProcess ChildProcess::start(const ChildCommand &command, const ChildStreams &streams,
                                 std::shared_ptr<Shutdown> shutdown)
{
    const auto refuse = [] { throw std::system_error(ECANCELED, std::generic_category()); };
    ShutdownEntry entry(std::move(shutdown));
    if (!entry.isAnnounced())
        refuse();
    const pid_t processID = spawnSessionLeader(command, streams);
    // At once: until then, nothing ends the child if this program dies.
    const bool isListed = entry.enter(processID);
    ChildProcess child(processID, std::move(entry));
    if (!isListed)
        refuse();
    return child;
}

ChildProcess::ChildProcess(pid_t processID, ShutdownEntry entry) noexcept
    : m_processID(processID), m_exit(processID), m_entry(std::move(entry))
{}

ChildProcess::ChildProcess(ChildProcess &&other) noexcept
    : m_processID(std::exchange(other.m_processID, 0)),
      m_exit(std::move(other.m_exit)),
      m_entry(std::move(other.m_entry))
{}

ChildProcess::~ChildProcess()
{
    if (m_processID == 0)
        return;
    signalGroup(SIGKILL);
    // unreachable: what survives SIGKILL is stuck inside the system
    if (waitUntil(deadlineAfter(survivalSeconds)))
        reap();
    else
        abandon(std::move(*this));
}

void ChildProcess::signal(int number) const noexcept
{
    if (m_processID > 0)
        kill(m_processID, number);
}

void ChildProcess::signalGroup(int number) const noexcept
{
    if (m_processID > 1)
        kill(-m_processID, number);
}

ChildProcess::Ending ChildProcess::reap()
{
    m_entry.leave();
    const siginfo_t found = reapedEnd(std::exchange(m_processID, 0));
    return {found.si_status, found.si_pid != 0 && found.si_code != CLD_EXITED};
}

// Passes on only the process ID: if the thread cannot be started, no owner may be left whose
// destructor would wait again. The child leaves the shutdown list, since it was already killed.
void ChildProcess::abandon(ChildProcess child) noexcept
{
    const pid_t processID = std::exchange(child.m_processID, 0);
    try {
        child.m_entry.leave();
        std::thread([processID] { reapedEnd(processID); }).detach();
    } catch (const std::exception &) { // no thread, or no memory for one
        return;
    }
}

void ProcessTermination::terminateThenKill(const ChildProcess &child, double graceSeconds)
{
    if (!child.isRunning())
        return;
    child.signal(SIGTERM);
    if (!child.waitUntil(deadlineAfter(graceSeconds)))
        child.signal(SIGKILL);
}

void ProcessTermination::sweepGroup(const ChildProcess &child)
{
    child.signalGroup(SIGTERM);
    std::this_thread::sleep_for(std::chrono::duration<double>(sweepGraceSeconds));
    child.signalGroup(SIGKILL);
}

} // namespace Loadwick
