#include "model/Published.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace Loadwick {

using Log = std::vector<std::string>;

TEST(PublishedTest, announcesAChangeBeforeAndAfterItHolds)
{
    Published<int> value(1);
    Log log;
    value.observe({.willChange =
                       [&](const int &incoming) {
                           log.push_back("will " + std::to_string(value.get()) + ">" +
                                         std::to_string(incoming));
                       },
                   .didChange = [&] { log.push_back("did " + std::to_string(value.get())); }});
    value.set(2);
    EXPECT_EQ(value.get(), 2);
    EXPECT_EQ(log, (Log{"will 1>2", "did 2"}));
}

TEST(PublishedTest, announcesAnEqualValueToo)
{
    Published<int> value(1);
    int count = 0;
    value.observe({.didChange = [&] { ++count; }});
    value.set(1);
    EXPECT_EQ(count, 1);
}

TEST(PublishedTest, callsObserversInOrderOfRegistration)
{
    Published<int> value(1);
    Log log;
    value.observe({.willChange = [&](const int &) { log.push_back("first will"); },
                   .didChange = [&] { log.push_back("first did"); }});
    value.observe({});
    value.observe({.willChange = [&](const int &) { log.push_back("second will"); },
                   .didChange = [&] { log.push_back("second did"); }});
    value.set(2);
    EXPECT_EQ(log, (Log{"first will", "second will", "first did", "second did"}));
}

TEST(PublishedTest, queuesAnObserversChangeAsTheNextOne)
{
    Published<int> value(0);
    Log log;
    value.observe({.didChange = [&] {
        log.push_back("first " + std::to_string(value.get()));
        if (value.get() == 1)
            value.set(2);
    }});
    value.observe({.didChange = [&] { log.push_back("second " + std::to_string(value.get())); }});
    value.set(1);
    EXPECT_EQ(log, (Log{"first 1", "second 1", "first 2", "second 2"}));
}

TEST(PublishedTest, keepsTheValueSetByWillChange)
{
    Published<int> value(0);
    value.observe({.willChange = [&](const int &incoming) {
        if (incoming == 1)
            value.set(2);
    }});
    value.set(1);
    EXPECT_EQ(value.get(), 2);
}

TEST(PublishedTest, allowsAddingObserversDuringAChange)
{
    Published<int> value(0);
    int late = 0;
    bool isFirst = true;
    const std::string longerThanAnySmallBuffer(100, 'x');
    value.observe({.didChange = [&, longerThanAnySmallBuffer] {
        if (!std::exchange(isFirst, false))
            return;
        for (int count = 0; count < 100; ++count)
            value.observe({.didChange = [&] { ++late; }});
        EXPECT_EQ(longerThanAnySmallBuffer.size(), 100U);
    }});
    value.set(1);
    EXPECT_EQ(late, 0);
    value.set(2);
    EXPECT_EQ(late, 100);
}

} // namespace Loadwick
