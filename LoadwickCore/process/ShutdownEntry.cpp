#include "process/ShutdownEntry.h"

#include <utility>

namespace Loadwick {

ShutdownEntry::ShutdownEntry(std::shared_ptr<Shutdown> shutdown)
    : m_shutdown(std::move(shutdown)), m_isAnnounced(!m_shutdown || m_shutdown->announce())
{}

ShutdownEntry::~ShutdownEntry()
{
    leave();
}

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
    // The last owner's pointer also tells a live entry from one that was moved from.
    const std::shared_ptr<Shutdown> shutdown = std::move(m_shutdown);
    if (!shutdown)
        return;
    if (m_group != 0)
        shutdown->remove(m_group);
    if (m_isAnnounced)
        shutdown->withdraw();
}

} // namespace Loadwick
