#pragma once

#include <functional>

namespace Loadwick {

/// Runs work in the background and on the interface thread. The window's implementation starts
/// threads and posts to its event loop; the tests' is stepped by hand.
class TaskDispatcher
{
public:
    using Task = std::function<void()>;

    virtual ~TaskDispatcher() = default;

    /// Runs `task` away from the interface thread, on a thread of its own. Called on the interface
    /// thread. Throws `std::system_error` or `std::bad_alloc` when no thread can be started.
    virtual void runInBackground(Task task) = 0;

    /// Runs `task` on the interface thread, after all tasks posted earlier. Called on any thread.
    /// Drops the task once the interface is gone.
    virtual void postToInterface(Task task) = 0;
};

} // namespace Loadwick
