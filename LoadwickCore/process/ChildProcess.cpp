#include "process/ChildProcess.h"

#include <cerrno>
#include <csignal>
#include <exception>
#include <system_error>
#include <thread>
#include <utility>

#include <sys/wait.h>

#include "process/ProcessSpawn.h"

namespace Loadwick {

namespace {

/// How a child ended, once it has; nobody's end when the child is not ours (any more).
siginfo_t reapedEnd(pid_t processID) noexcept
{
    siginfo_t found{};
    while (waitid(P_PID, static_cast<id_t>(processID), &found, WEXITED) != 0 && errno == EINTR) {
    }
    return found;
}

} // namespace

ChildProcess ChildProcess::start(const ChildCommand &command, const ChildStreams &streams,
                                 std::shared_ptr<Shutdown> shutdown)
{
    const auto refuse = [] { throw std::system_error(ECANCELED, std::generic_category()); };
    ShutdownEntry entry(std::move(shutdown));
    if (!entry.isAnnounced())
        refuse();
    ChildProcess child(spawnSessionLeader(command, streams), std::move(entry));
    // not taken: the end would have to be requested while the child is being spawned
    if (!child.m_entry.enter(child.m_processID))
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
    // not taken: what survives SIGKILL is stuck inside the system
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

// The number travels alone: a thread that cannot be started must not leave an owner behind whose
// destructor would wait once more. The list of children goes without it, since the kill was sent.
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

} // namespace Loadwick
