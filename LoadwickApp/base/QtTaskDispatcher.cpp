#include "base/QtTaskDispatcher.h"

#include <mutex>
#include <thread>
#include <utility>

#include <QObject>

namespace Loadwick {

/// Shared with the object's end, so that it also outlives a dispatcher that a late thread drops.
struct QtTaskDispatcher::Target
{
    std::mutex mutex;
    QObject *interface; ///< null once destroyed
};

QtTaskDispatcher::QtTaskDispatcher(QObject &interface) : m_target(std::make_shared<Target>())
{
    m_target->interface = &interface;
    QObject::connect(&interface, &QObject::destroyed, [target = m_target] {
        const std::lock_guard lock(target->mutex);
        target->interface = nullptr;
    });
}

void QtTaskDispatcher::runInBackground(Task task)
{
    std::thread([task = std::move(task)] { task(); }).detach();
}

void QtTaskDispatcher::postToInterface(Task task)
{
    // The lock keeps the object alive until the event is queued; it takes its events with it.
    const std::lock_guard lock(m_target->mutex);
    if (m_target->interface != nullptr)
        QMetaObject::invokeMethod(m_target->interface, std::move(task), Qt::QueuedConnection);
}

} // namespace Loadwick
