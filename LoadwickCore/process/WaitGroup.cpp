#include "process/WaitGroup.h"

namespace Loadwick {

void WaitGroup::enter()
{
    const std::lock_guard lock(m_lock);
    ++m_count;
}

void WaitGroup::leave()
{
    const std::lock_guard lock(m_lock);
    --m_count;
    m_changed.notify_all();
}

bool WaitGroup::waitUntil(Deadline deadline)
{
    std::unique_lock lock(m_lock);
    return m_changed.wait_until(lock, deadline, [this] { return m_count == 0; });
}

} // namespace Loadwick
