#include "support/SteppingDispatcher.h"

#include <memory>
#include <string>
#include <system_error>

#include <gtest/gtest.h>

namespace Loadwick {

TEST(SteppingDispatcherTest, runsNothingUnlessStepped)
{
    SteppingDispatcher dispatcher;
    std::string log;
    dispatcher.runInBackground([&] { log += 'b'; });
    dispatcher.postToInterface([&] { log += 'p'; });
    EXPECT_EQ(log, "");
    EXPECT_EQ(dispatcher.backgroundCount(), 1U);
    EXPECT_EQ(dispatcher.postedCount(), 1U);
    dispatcher.runPosted();
    dispatcher.runBackground();
    EXPECT_EQ(log, "pb");
}

TEST(SteppingDispatcherTest, runsTasksInOrder)
{
    SteppingDispatcher dispatcher;
    std::string log;
    dispatcher.runInBackground([&] {
        log += '1';
        dispatcher.postToInterface([&] {
            log += '2';
            dispatcher.runInBackground([&] { log += '4'; });
        });
    });
    dispatcher.postToInterface([&] { log += '0'; });
    dispatcher.runPosted();
    dispatcher.step();
    log += '3';
    dispatcher.runAll();
    EXPECT_EQ(log, "01234");
}

TEST(SteppingDispatcherTest, stepsTheNewestTaskFirstIfAsked)
{
    SteppingDispatcher dispatcher;
    std::string log;
    for (const char letter : {'a', 'b', 'c'})
        dispatcher.runInBackground([&, letter] {
            log += letter;
            dispatcher.postToInterface([&] { log += '.'; });
        });
    dispatcher.stepNewest();
    dispatcher.runAll();
    EXPECT_EQ(log, "c.a.b.");
}

TEST(SteppingDispatcherTest, destroysATaskThatHasRun)
{
    SteppingDispatcher dispatcher;
    const auto witness = std::make_shared<int>(0);
    dispatcher.runInBackground([witness] {});
    EXPECT_EQ(witness.use_count(), 2);
    dispatcher.runBackground();
    EXPECT_EQ(witness.use_count(), 1);
}

TEST(SteppingDispatcherTest, discardsTasksUnrun)
{
    SteppingDispatcher dispatcher;
    const auto witness = std::make_shared<int>(0);
    dispatcher.runInBackground([witness] { ++*witness; });
    dispatcher.postToInterface([witness] { ++*witness; });
    dispatcher.discardAll();
    EXPECT_EQ(witness.use_count(), 1);
    EXPECT_EQ(*witness, 0);
}

TEST(SteppingDispatcherTest, refusesBackgroundTasksWhenTold)
{
    SteppingDispatcher dispatcher;
    dispatcher.refuseBackground();
    EXPECT_THROW(dispatcher.runInBackground([] {}), std::system_error);
    EXPECT_EQ(dispatcher.backgroundCount(), 0U);
    dispatcher.allowBackground();
    dispatcher.runInBackground([] {});
    EXPECT_EQ(dispatcher.backgroundCount(), 1U);
}

TEST(SteppingDispatcherTest, endsTheProgramWhenThereIsNoTask)
{
    SteppingDispatcher dispatcher;
    EXPECT_DEATH(dispatcher.runPosted(), "does not exist");
}

} // namespace Loadwick
