#pragma once

#include <condition_variable>
#include <mutex>

#include "process/Deadline.h"

namespace Loadwick {

/// Counts work under way, for whoever waits until all of it is done. Shared by threads.
class WaitGroup
{
public:
    void enter();
    void leave();

    /// Blocks until everyone who entered has left, or until `deadline`; true for the former.
    [[nodiscard]] bool waitUntil(Deadline deadline);

private:
    std::mutex m_lock;
    std::condition_variable m_changed;
    int m_count = 0;
};

} // namespace Loadwick
