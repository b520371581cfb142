#include "faults/driver/QueueDispatcher.h"

#include <thread>
#include <utility>

#include "process/Deadline.h"

namespace Faults {

void QueueDispatcher::runInBackground(Task task)
{
    std::thread([task = std::move(task)] { task(); }).detach();
}

void QueueDispatcher::postToInterface(Task task)
{
    const std::lock_guard lock(m_mutex);
    m_spare.front() = std::move(task);
    m_tasks.splice(m_tasks.end(), m_spare, m_spare.begin());
    m_posted.notify_all();
}

bool QueueDispatcher::runUntil(const std::function<bool()> &holds, double limitSeconds)
{
    const Loadwick::Deadline deadline = Loadwick::deadlineAfter(limitSeconds);
    while (!holds()) {
        std::unique_lock lock(m_mutex);
        if (!m_posted.wait_until(lock, deadline, [this] { return !m_tasks.empty(); }))
            return false;
        const Task task = std::move(m_tasks.front());
        m_tasks.pop_front();
        lock.unlock();
        task();
    }
    return true;
}

} // namespace Faults
