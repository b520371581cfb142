#pragma once

#include <cstdint>
#include <memory>

#include <sys/types.h>

#include "posix/FileDescriptor.h"
#include "process/Deadline.h"
#include "process/ProcessSpawn.h"
#include "process/Shutdown.h"

namespace Loadwick {

/// Waits for the end of a child without reaping it, so that its process ID cannot be reused while
/// it may be signalled.
class ExitWatch
{
public:
    /// `child` is a child of this process that has not been reaped.
    explicit ExitWatch(pid_t child) noexcept;

    /// Blocks until `deadline` at most, or until the descriptor `interruption` is readable; true if
    /// the child has ended. A process that is not, or no longer, our child counts as ended.
    [[nodiscard]] bool waitUntil(Deadline deadline, int interruption = FileDescriptor::none) const;

private:
    pid_t m_child;
    FileDescriptor m_handle; ///< becomes readable when the child ends; none where unsupported
};

/// The sole owner of a running child, which leads a process group of its own. Nothing else reaps
/// it, so its process ID stays valid until `reap`. Used by one thread at a time; movable.
class ChildProcess
{
public:
    /// How long a child may survive its SIGKILL before it is left to a thread that reaps it later.
    static constexpr double survivalSeconds = 5.0;

    struct Ending
    {
        std::int32_t status = 0; ///< exit status, or the signal's number
        bool isBySignal = false;
        friend bool operator==(const Ending &, const Ending &) = default;
    };

    /// Starts the child and lists its group in `shutdown` (which may be null) until it is reaped.
    /// Throws `std::system_error`, with ECANCELED once the end of the program was requested.
    [[nodiscard]] static ChildProcess start(const ChildCommand &command,
                                            const ChildStreams &streams,
                                            std::shared_ptr<Shutdown> shutdown);

    /// Kills a child that was not reaped, with its group, and reaps it: now, or in the background
    /// if it survives for `survivalSeconds`.
    ~ChildProcess();

    ChildProcess(ChildProcess &&other) noexcept;
    ChildProcess &operator=(ChildProcess &&other) = delete;
    ChildProcess(const ChildProcess &) = delete;
    ChildProcess &operator=(const ChildProcess &) = delete;

    [[nodiscard]] pid_t processID() const noexcept { return m_processID; }

    /// Waits as `ExitWatch` does, without reaping; true when the child has ended.
    [[nodiscard]] bool waitUntil(Deadline deadline, int interruption = FileDescriptor::none) const
    {
        return m_exit.waitUntil(deadline, interruption);
    }
    [[nodiscard]] bool isRunning() const { return !waitUntil(Deadline::min()); }

    /// Signals the child alone, or its whole group. Errors are ignored: the process is gone.
    void signal(int number) const noexcept;
    void signalGroup(int number) const noexcept;

    /// Reaps the child, waiting for its end if necessary. This object owns nothing afterwards.
    Ending reap();

    /// Leaves `child` to a background thread that reaps it when it ends.
    static void abandon(ChildProcess child) noexcept;

private:
    ChildProcess(pid_t processID, ShutdownEntry entry) noexcept;

    pid_t m_processID; ///< 0 when there is nothing to reap
    ExitWatch m_exit;
    ShutdownEntry m_entry;
};

/// Stops a child that ran too long, and what it leaves behind.
namespace ProcessTermination {

inline constexpr double sweepGraceSeconds = 0.2;

/// Asks the child itself to end (SIGTERM) and kills it if it still runs `graceSeconds` later. Does
/// not reap, and does not wait for the kill. Does nothing to a child that has ended.
void terminateThenKill(const ChildProcess &child, double graceSeconds);

/// Asks the rest of the child's group to end, and kills it `sweepGraceSeconds` later. The child
/// must not have been reaped: its ID could be another process's.
void sweepGroup(const ChildProcess &child);

} // namespace ProcessTermination

} // namespace Loadwick
