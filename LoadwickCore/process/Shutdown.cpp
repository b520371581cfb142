#include "process/Shutdown.h"

#include <algorithm>
#include <csignal>
#include <utility>

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
    if (m_deathWatch)
        m_deathWatch->prepare();
    // Listing a child that runs already must not fail.
    m_groups.reserve(m_groups.size() + static_cast<std::size_t>(m_announced) + 1);
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
    if (m_deathWatch)
        m_deathWatch->add(group);
    return true;
}

void Shutdown::remove(pid_t group)
{
    const std::lock_guard lock(m_mutex);
    m_groups.erase(std::remove(m_groups.begin(), m_groups.end(), group), m_groups.end());
    if (m_deathWatch)
        m_deathWatch->remove(group);
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

// Under the lock, so that no listed leader is reaped and its ID reused meanwhile.
void Shutdown::signalGroups(int number)
{
    for (const pid_t group : m_groups)
        signalGroup(group, number);
}

bool Shutdown::signalGroup(pid_t group, int number) noexcept
{
    return group > 1 && kill(-group, number) == 0;
}

ShutdownEntry::ShutdownEntry(std::shared_ptr<Shutdown> shutdown)
    : m_shutdown(std::move(shutdown)), m_isAnnounced(!m_shutdown || m_shutdown->announce())
{}

bool ShutdownEntry::enter(pid_t group)
{
    if (!m_shutdown)
        return true;
    if (!m_shutdown->add(group))
        return false;
    m_group = group;
    m_shutdown->withdraw();
    m_isAnnounced = false;
    return true;
}

void ShutdownEntry::leave()
{
    // A null pointer also marks an entry that was moved from.
    const std::shared_ptr<Shutdown> shutdown = std::move(m_shutdown);
    if (!shutdown)
        return;
    if (m_group != 0)
        shutdown->remove(m_group);
    if (m_isAnnounced)
        shutdown->withdraw();
}

} // namespace Loadwick
