#pragma once

#include <memory>

#include "model/TaskDispatcher.h"

namespace Loadwick {

/// Runs tasks in the background one after the other, in the order given. Has a thread only while
/// there is something to do. Tasks given before its end run nevertheless.
class SerialTasks
{
public:
    explicit SerialTasks(std::shared_ptr<TaskDispatcher> dispatcher);

    /// Returns at once, unless no thread can be started: it then runs what waits itself. The task
    /// must not throw. Throws `std::bad_alloc`, and forgets the task, when there is no memory.
    void run(TaskDispatcher::Task task);

    /// Returns when every task given so far has run. Callable on any thread but the tasks' own.
    void finish() const;

private:
    struct Queue;
    std::shared_ptr<TaskDispatcher> m_dispatcher;
    std::shared_ptr<Queue> m_queue; ///< shared with the thread, which may outlive this
};

} // namespace Loadwick
