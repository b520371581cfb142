#include "process/ExitWatch.h"

#include <cerrno>
#include <thread>

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

void pauseUntilEndOr(Deadline deadline, int handle)
{
    using namespace std::chrono_literals;
    if (handle == FileDescriptor::none) {
        std::this_thread::sleep_for(std::chrono::milliseconds(millisecondsUntil(deadline, 10ms)));
        return;
    }
    pollfd ended{handle, POLLIN, 0};
    poll(&ended, 1, millisecondsUntil(deadline, 60s));
}

} // namespace

ExitWatch::ExitWatch(pid_t child) noexcept : m_child(child), m_handle(exitHandle(child)) {}

bool ExitWatch::waitUntil(Deadline deadline) const
{
    while (!hasEnded(m_child)) {
        if (std::chrono::steady_clock::now() >= deadline)
            return false;
        pauseUntilEndOr(deadline, m_handle.number());
    }
    return true;
}

} // namespace Loadwick
