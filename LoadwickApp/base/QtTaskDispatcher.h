#pragma once

#include <exception>
#include <memory>
#include <utility>

#include <QPointer>

#include "model/TaskDispatcher.h"

namespace Loadwick {

/// Runs background work on detached threads and posts to the event loop of one object's thread. A
/// thread that blocks for ever therefore delays nothing, not even the end of the program.
class QtTaskDispatcher final : public TaskDispatcher
{
public:
    /// Posted work runs on the thread of `interface`, until that object is destroyed.
    explicit QtTaskDispatcher(QObject &interface);

    void runInBackground(Task task) override;
    void postToInterface(Task task) override;

private:
    struct Target;
    std::shared_ptr<Target> m_target;
};

/// Runs `work` on a background thread and passes its value to `whenDone` on the interface thread,
/// unless `object` has been destroyed by then. `work` must therefore own everything it touches;
/// `whenDone` may use the object. Call it on the interface thread. False if no thread could be
/// started: neither function then runs. `work` must not throw.
template<typename Work, typename WhenDone>
bool inBackground(const QObject *object, const std::shared_ptr<TaskDispatcher> &dispatcher,
                  Work work, WhenDone whenDone)
{
    const QPointer<const QObject> receiver(object);
    try {
        dispatcher->runInBackground(
            [receiver, dispatcher, work = std::move(work), whenDone = std::move(whenDone)] {
                dispatcher->postToInterface([receiver, whenDone, value = work()] {
                    if (receiver)
                        whenDone(value);
                });
            });
    } catch (const std::exception &) {
        return false;
    }
    return true;
}

} // namespace Loadwick
