#include "process/ReaderDeadline.h"

namespace Loadwick {

void ReaderDeadline::setExpiry(Deadline expiry)
{
    const std::lock_guard lock(m_lock);
    m_expiry = expiry;
}

std::optional<Deadline> ReaderDeadline::expiry() const
{
    const std::lock_guard lock(m_lock);
    return m_expiry;
}

bool ReaderDeadline::hasPassed() const
{
    const std::optional<Deadline> moment = expiry();
    return moment && std::chrono::steady_clock::now() >= *moment;
}

} // namespace Loadwick
