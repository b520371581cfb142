#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <vector>

#include <sys/types.h>

namespace Loadwick {

/// The program's end, as its background work sees it: a latch that wakes every wait, and the list
/// of child process groups that must not outlive the program. Shared by all threads.
class Shutdown
{
public:
    /// Wakes every `waitFor`, now and later. Cannot be taken back.
    void request();
    [[nodiscard]] bool isRequested() const;

    /// Sleeps until `duration` has passed or the end was requested; true for the latter.
    bool waitFor(std::chrono::duration<double> duration);

    /// Announces a child that is about to start, so that `stopChildren` waits for its group to be
    /// entered. False, and nothing announced, once the end was requested: start no child then.
    [[nodiscard]] bool announce();

    /// Takes an announcement back, once the child was added or could not be started.
    void withdraw();

    /// Enters a process group whose leader is our child. False, and nothing entered, once the end
    /// was requested: the caller then stops the child itself.
    [[nodiscard]] bool add(pid_t group);

    /// Takes a group off the list. Call it before the leader is reaped: from then on the number may
    /// belong to somebody else.
    void remove(pid_t group);

    /// Requests the end, sends every listed group SIGTERM and, to those still listed after `grace`,
    /// SIGKILL. Returns as soon as no group is listed or announced, at the latest after `grace`.
    void stopChildren(std::chrono::duration<double> grace);

private:
    void signalGroups(int number);

    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    std::vector<pid_t> m_groups;
    int m_announced = 0;
    bool m_isRequested = false;
};

} // namespace Loadwick
