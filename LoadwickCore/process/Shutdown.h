#pragma once

#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <utility>
#include <vector>

#include <sys/types.h>

#include "process/DeathWatch.h"

namespace Loadwick {

/// The end of the program, for its background work: a latch that wakes every wait, and the list of
/// child process groups that must not outlive the program. Shared by all threads.
class Shutdown
{
public:
    /// With a watch, the listed groups do not outlive the program whatever ends it.
    explicit Shutdown(std::unique_ptr<DeathWatch> deathWatch = nullptr)
        : m_deathWatch(std::move(deathWatch))
    {}

    /// Wakes every `waitFor`, now and later. Cannot be undone.
    void request();
    [[nodiscard]] bool isRequested() const;

    /// Sleeps for `duration`, or until the end is requested; true if it was.
    bool waitFor(std::chrono::duration<double> duration);

    /// Announces a child that is about to start, so that `stopChildren` waits until its group is
    /// listed. False, and nothing announced, once the end was requested: start no child then.
    [[nodiscard]] bool announce();

    /// Withdraws an announcement, once the child was added or could not be started.
    void withdraw();

    /// Lists a process group whose leader is our child. False, and nothing listed, once the end was
    /// requested: the caller then stops the child itself.
    [[nodiscard]] bool add(pid_t group);

    /// Removes a group from the list. Call it before the leader is reaped: from then on its ID may
    /// belong to another process.
    void remove(pid_t group);

    /// Requests the end, sends every listed group SIGTERM and, to those still listed after `grace`,
    /// SIGKILL. Returns as soon as no group is listed or announced, at the latest after `grace`.
    void stopChildren(std::chrono::duration<double> grace);

    /// Sends a signal to all processes of a group; false if there is no such group. What `kill`
    /// takes for its caller's own group or for every process is none.
    static bool signalGroup(pid_t group, int number) noexcept;

private:
    void signalGroups(int number);

    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    std::unique_ptr<DeathWatch> m_deathWatch; ///< may be null
    std::vector<pid_t> m_groups;
    int m_announced = 0;
    bool m_isRequested = false;
};

/// The entry of one child in a `Shutdown`, from before its start until before it is reaped. Does
/// nothing without a `Shutdown`. Movable; its destructor removes the entry.
class ShutdownEntry
{
public:
    /// Announces the child.
    explicit ShutdownEntry(std::shared_ptr<Shutdown> shutdown);
    ~ShutdownEntry() { leave(); }

    ShutdownEntry(ShutdownEntry &&other) noexcept = default;
    ShutdownEntry &operator=(ShutdownEntry &&other) = delete;
    ShutdownEntry(const ShutdownEntry &) = delete;
    ShutdownEntry &operator=(const ShutdownEntry &) = delete;

    /// False once the end was requested: the child must not be started.
    [[nodiscard]] bool isAnnounced() const noexcept { return m_isAnnounced; }

    /// Turns the announcement into a listing of the started child's group. False when the end was
    /// requested meanwhile: stop the child, and keep this object until that is done.
    [[nodiscard]] bool enter(pid_t group);

    /// Removes the entry. Call it before the child is reaped.
    void leave();

private:
    std::shared_ptr<Shutdown> m_shutdown;
    pid_t m_group = 0;
    bool m_isAnnounced = false;
};

} // namespace Loadwick
