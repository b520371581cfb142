#pragma once

#include <memory>

#include "model/TaskDispatcher.h"

class QObject;

namespace Loadwick {

/// Runs background work on detached threads and posts to the event loop of one object's thread.
/// A thread that blocks for ever therefore holds up nobody, not even the program's end.
class QtTaskDispatcher final : public TaskDispatcher
{
public:
    /// What is posted runs on the thread of `interface`, until that object is destroyed.
    explicit QtTaskDispatcher(QObject &interface);

    void runInBackground(Task task) override;
    void postToInterface(Task task) override;

private:
    struct Target;
    std::shared_ptr<Target> m_target;
};

} // namespace Loadwick
