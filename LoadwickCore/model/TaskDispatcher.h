#pragma once

#include <functional>

namespace Loadwick {

/// The two places where work runs. The window brings one that starts threads and posts to its event
/// loop, a test one that steps by hand.
class TaskDispatcher
{
public:
    using Task = std::function<void()>;

    virtual ~TaskDispatcher() = default;

    /// Runs `task` away from the interface thread, on a thread of its own. Called on the interface
    /// thread. Throws `std::system_error` or `std::bad_alloc` when no thread is to be had.
    virtual void runInBackground(Task task) = 0;

    /// Runs `task` on the interface thread, after what was posted before it. Called on any thread,
    /// also when the interface is already gone: the task is then dropped.
    virtual void postToInterface(Task task) = 0;
};

} // namespace Loadwick
