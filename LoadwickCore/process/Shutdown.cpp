#include "process/Shutdown.h"

#include <algorithm>
#include <csignal>

#include "process/Deadline.h"

namespace Loadwick {

void Shutdown::request()
{
    const std::lock_guard lock(m_mutex);
    m_isRequested = true;
    m_changed.notify_all();
}

bool Shutdown::isRequested() const
{
    const std::lock_guard lock(m_mutex);
    return m_isRequested;
}

bool Shutdown::waitFor(std::chrono::duration<double> duration)
{
    const Deadline deadline = deadlineAfter(duration.count());
    std::unique_lock lock(m_mutex);
    return m_changed.wait_until(lock, deadline, [this] { return m_isRequested; });
}

bool Shutdown::announce()
{
    const std::lock_guard lock(m_mutex);
    if (m_isRequested)
        return false;
    ++m_announced;
    return true;
}

void Shutdown::withdraw()
{
    const std::lock_guard lock(m_mutex);
    --m_announced;
    m_changed.notify_all();
}

bool Shutdown::add(pid_t group)
{
    const std::lock_guard lock(m_mutex);
    if (m_isRequested)
        return false;
    m_groups.push_back(group);
    return true;
}

void Shutdown::remove(pid_t group)
{
    const std::lock_guard lock(m_mutex);
    m_groups.erase(std::remove(m_groups.begin(), m_groups.end(), group), m_groups.end());
    m_changed.notify_all();
}

void Shutdown::stopChildren(std::chrono::duration<double> grace)
{
    const Deadline deadline = deadlineAfter(grace.count());
    std::unique_lock lock(m_mutex);
    m_isRequested = true;
    m_changed.notify_all();
    signalGroups(SIGTERM);
    m_changed.wait_until(lock, deadline, [this] { return m_groups.empty() && m_announced == 0; });
    signalGroups(SIGKILL);
}

// Under the lock, so that no listed leader is reaped meanwhile and its number given away.
void Shutdown::signalGroups(int number)
{
    for (const pid_t group : m_groups)
        if (group > 1)
            kill(-group, number);
}

} // namespace Loadwick
