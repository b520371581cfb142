#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "model/ScanModel.h"
#include "support/ScanModelHarness.h"

namespace Loadwick {

namespace {

/// Real threads for the background; the test's own thread plays the interface.
class ThreadDispatcher : public TaskDispatcher
{
public:
    ~ThreadDispatcher() override { joinAll(); }

    void runInBackground(Task task) override
    {
        const std::lock_guard lock(m_mutex);
        m_threads.emplace_back(std::move(task));
    }

    void postToInterface(Task task) override
    {
        const std::lock_guard lock(m_mutex);
        m_posted.push_back(std::move(task));
        m_arrived.notify_one();
    }

    void runNextPosted()
    {
        std::unique_lock lock(m_mutex);
        m_arrived.wait(lock, [this] { return !m_posted.empty(); });
        const Task task = std::move(m_posted.front());
        m_posted.pop_front();
        lock.unlock();
        task();
    }

    // A task may start another, and the dispatcher's last owner may be one of its own tasks.
    void joinAll()
    {
        for (std::vector<std::thread> threads = taken(); !threads.empty(); threads = taken())
            for (std::thread &thread : threads)
                thread.get_id() == std::this_thread::get_id() ? thread.detach() : thread.join();
    }

private:
    std::vector<std::thread> taken()
    {
        const std::lock_guard lock(m_mutex);
        return std::exchange(m_threads, {});
    }

    std::mutex m_mutex;
    std::condition_variable m_arrived;
    std::deque<Task> m_posted;
    std::vector<std::thread> m_threads;
};

} // namespace

TEST(ScanModelThreadsTest, runsItsStagesOnBackgroundThreads)
{
    const ScanModelHarness harness;
    const auto dispatcher = std::make_shared<ThreadDispatcher>();
    ScanModel::Collaborators collaborators = harness.collaborators();
    collaborators.dispatcher = dispatcher;
    ScanModel model(std::move(collaborators));
    model.select(harness.repository());
    model.scan();
    while (model.state().get().isScanning() || !model.isHistoryComplete())
        dispatcher->runNextPosted();
    EXPECT_EQ(model.history().get().size(), 1U);
}

TEST(ScanModelThreadsTest, mayBeDestroyedWhileAStageRuns)
{
    const ScanModelHarness harness;
    const auto dispatcher = std::make_shared<ThreadDispatcher>();
    for (int posted = 0; posted < 4; ++posted) {
        ScanModel::Collaborators collaborators = harness.collaborators();
        collaborators.dispatcher = dispatcher;
        std::optional<ScanModel> model(std::in_place, std::move(collaborators));
        model->select(harness.repository());
        model->scan();
        for (int count = 0; count < posted; ++count)
            dispatcher->runNextPosted();
        model.reset();
        dispatcher->joinAll();
        dispatcher->runNextPosted();
    }
    EXPECT_TRUE(harness.recorded().empty());
}

} // namespace Loadwick
