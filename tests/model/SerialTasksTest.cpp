#include "model/SerialTasks.h"

#include <atomic>
#include <functional>
#include <future>
#include <memory>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "support/SteppingDispatcher.h"

namespace Loadwick {

namespace {

class ThreadPerTask : public TaskDispatcher
{
public:
    void runInBackground(Task task) override
    {
        ++threads;
        std::thread(std::move(task)).detach();
    }
    void postToInterface(Task) override {}

    std::atomic<int> threads = 0;
};

using Log = std::vector<int>;

} // namespace

TEST(SerialTasksTest, runsInTheOrderGiven)
{
    Log log;
    SerialTasks tasks(std::make_shared<ThreadPerTask>());
    for (int number = 0; number < 1'000; ++number)
        tasks.run([&log, number] { log.push_back(number); });
    tasks.finish();
    ASSERT_EQ(log.size(), 1'000U);
    for (int number = 0; number < 1'000; ++number)
        EXPECT_EQ(log[static_cast<std::size_t>(number)], number);
}

TEST(SerialTasksTest, waitsForTheTaskBefore)
{
    std::promise<void> gate;
    std::atomic<bool> isFirstDone = false;
    bool wasFirstDone = false;
    const auto dispatcher = std::make_shared<ThreadPerTask>();
    SerialTasks tasks(dispatcher);
    tasks.run([&, wait = gate.get_future().share()] {
        wait.get();
        isFirstDone = true;
    });
    tasks.run([&] { wasFirstDone = isFirstDone; });
    gate.set_value();
    tasks.finish();
    EXPECT_TRUE(wasFirstDone);
    EXPECT_EQ(dispatcher->threads, 1);
}

TEST(SerialTasksTest, hasAThreadOnlyWhileThereIsSomethingToDo)
{
    Log log;
    const auto dispatcher = std::make_shared<SteppingDispatcher>();
    SerialTasks tasks(dispatcher);
    tasks.finish();
    EXPECT_EQ(dispatcher->backgroundCount(), 0U);
    for (int number = 1; number <= 2; ++number) {
        tasks.run([&log, number] { log.push_back(number); });
        tasks.run([&log, number] { log.push_back(-number); });
        EXPECT_EQ(dispatcher->backgroundCount(), 1U);
        dispatcher->runBackground();
        tasks.finish();
    }
    EXPECT_EQ(log, (Log{1, -1, 2, -2}));
}

TEST(SerialTasksTest, runsWhatATaskAddsAfterIt)
{
    Log log;
    const auto dispatcher = std::make_shared<SteppingDispatcher>();
    SerialTasks tasks(dispatcher);
    tasks.run([&] {
        tasks.run([&] { log.push_back(2); });
        log.push_back(1);
    });
    dispatcher->runBackground();
    EXPECT_EQ(log, (Log{1, 2}));
}

TEST(SerialTasksTest, runsItselfWhatNoThreadCanBeStartedFor)
{
    Log log;
    const auto dispatcher = std::make_shared<SteppingDispatcher>();
    SerialTasks tasks(dispatcher);
    dispatcher->refuseBackground();
    tasks.run([&] { log.push_back(1); });
    EXPECT_EQ(log, Log{1});
    dispatcher->allowBackground();
    tasks.run([&] { log.push_back(2); });
    EXPECT_EQ(log, Log{1});
    dispatcher->runBackground();
    EXPECT_EQ(log, (Log{1, 2}));
}

TEST(SerialTasksTest, runsAfterItsEndWhatWasGivenBefore)
{
    Log log;
    const auto dispatcher = std::make_shared<SteppingDispatcher>();
    SerialTasks(dispatcher).run([&] { log.push_back(1); });
    dispatcher->runAll();
    EXPECT_EQ(log, Log{1});
}

} // namespace Loadwick
