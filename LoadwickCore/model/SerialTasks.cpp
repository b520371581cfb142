#include "model/SerialTasks.h"

#include <condition_variable>
#include <exception>
#include <list>
#include <mutex>
#include <utility>

namespace Loadwick {

using Task = TaskDispatcher::Task;

struct SerialTasks::Queue
{
    std::mutex mutex;
    std::condition_variable becameIdle;
    std::list<Task> waiting; ///< a list: its nodes move without memory
    bool isIdle = true;

    /// Whether a thread is wanted for what waits.
    bool add(Task task)
    {
        const std::lock_guard lock(mutex);
        waiting.push_back(std::move(task));
        return std::exchange(isIdle, false);
    }

    void runAll()
    {
        while (runNext()) {
        }
    }

private:
    /// False when nothing waits.
    bool runNext()
    {
        std::list<Task> next;
        std::unique_lock lock(mutex);
        isIdle = waiting.empty();
        if (isIdle) {
            becameIdle.notify_all();
            return false;
        }
        next.splice(next.end(), waiting, waiting.begin());
        lock.unlock();
        next.front()();
        return true;
    }
};

SerialTasks::SerialTasks(std::shared_ptr<TaskDispatcher> dispatcher)
    : m_dispatcher(std::move(dispatcher)), m_queue(std::make_shared<Queue>())
{}

void SerialTasks::run(Task task)
{
    if (!m_queue->add(std::move(task)))
        return;
    try {
        m_dispatcher->runInBackground([queue = m_queue] { queue->runAll(); });
    } catch (const std::exception &) {
        m_queue->runAll();
    }
}

void SerialTasks::finish() const
{
    std::unique_lock lock(m_queue->mutex);
    m_queue->becameIdle.wait(lock, [this] { return m_queue->isIdle; });
}

} // namespace Loadwick
