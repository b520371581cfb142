#pragma once

#include <sys/types.h>

#include "posix/FileDescriptor.h"

namespace Loadwick {

/// Ends process groups when this program dies without ending them itself: by SIGKILL, in a crash,
/// or when a library leaves the process because the display is gone. A shell waits at a pipe that
/// only this program holds open; at its end the shell sends the listed groups SIGTERM and, to those
/// that remain, SIGKILL. A group that is started in the instant of the death, and not yet listed,
/// survives. Used by one thread at a time.
class DeathWatch
{
public:
    static constexpr int usualGraceSeconds = 5;

    /// A group may outlive its SIGTERM by `graceSeconds`.
    explicit DeathWatch(int graceSeconds = usualGraceSeconds) : m_graceSeconds(graceSeconds) {}
    /// Ends the shell, and no group.
    ~DeathWatch();

    DeathWatch(const DeathWatch &) = delete;
    DeathWatch &operator=(const DeathWatch &) = delete;

    /// Starts the shell. Call it before a child is started, so that listing its group takes no
    /// longer than writing a line. Where it fails, no group is listed.
    void prepare() noexcept;

    /// Lists a group whose leader is our child.
    void add(pid_t group) noexcept;

    /// Call it before the leader is reaped, as for `Shutdown::remove`.
    void remove(pid_t group) noexcept;

private:
    void start();
    void tell(char sign, pid_t group) noexcept;

    int m_graceSeconds;
    Pipe m_pipe;
    pid_t m_shell = 0;
};

} // namespace Loadwick
