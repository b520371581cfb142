#pragma once

#include <condition_variable>
#include <functional>
#include <list>
#include <mutex>

#include "model/TaskDispatcher.h"

namespace Faults {

/// Dispatches without an event loop: to threads, and to the caller of `runUntil`.
class QueueDispatcher final : public Loadwick::TaskDispatcher
{
public:
    void runInBackground(Task task) override;
    void postToInterface(Task task) override;

    /// Runs what is posted until `holds`; false when that takes longer than `limitSeconds`.
    [[nodiscard]] bool runUntil(const std::function<bool()> &holds, double limitSeconds);

private:
    std::mutex m_mutex;
    std::condition_variable m_posted;
    std::list<Task> m_tasks;
    std::list<Task> m_spare = std::list<Task>(16); ///< posting needs no memory
};

} // namespace Faults
