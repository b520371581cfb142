#pragma once

#include <cstdint>
#include <memory>

#include <sys/types.h>

#include "process/ChildCommand.h"
#include "process/Deadline.h"
#include "process/ExitWatch.h"
#include "process/Shutdown.h"
#include "process/ShutdownEntry.h"

namespace Loadwick {

/// The one owner of a running child, which leads a process group of its own. Nobody else reaps it,
/// so its number stays valid until `reap`. Used by one thread at a time; movable.
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

    /// Starts the child and enters its group in `shutdown` (which may be absent) until it is
    /// reaped. Throws `std::system_error`; ECANCELED once the program's end was requested.
    [[nodiscard]] static ChildProcess start(const ChildCommand &command,
                                            const ChildStreams &streams,
                                            std::shared_ptr<Shutdown> shutdown);

    /// Kills what was not reaped, with its group, and reaps it: at once, or in the background when
    /// it survives for `survivalSeconds`.
    ~ChildProcess();

    ChildProcess(ChildProcess &&other) noexcept;
    ChildProcess &operator=(ChildProcess &&other) = delete;
    ChildProcess(const ChildProcess &) = delete;
    ChildProcess &operator=(const ChildProcess &) = delete;

    [[nodiscard]] pid_t processID() const noexcept { return m_processID; }

    /// Waits without reaping; true when the child has ended.
    [[nodiscard]] bool waitUntil(Deadline deadline) const { return m_exit.waitUntil(deadline); }
    [[nodiscard]] bool isRunning() const { return !waitUntil(Deadline::min()); }

    /// Signals the child alone, or its whole group. Errors are of no interest: who is gone is gone.
    void signal(int number) const noexcept;
    void signalGroup(int number) const noexcept;

    /// Reaps the child, waiting for its end if need be. Afterwards this object owns nothing.
    Ending reap();

    /// Leaves `child` to a background thread that reaps it when it ends.
    static void abandon(ChildProcess child) noexcept;

private:
    ChildProcess(pid_t processID, ShutdownEntry entry) noexcept;

    pid_t m_processID; ///< 0 when there is nothing to reap (any more)
    ExitWatch m_exit;
    ShutdownEntry m_entry;
};

} // namespace Loadwick
