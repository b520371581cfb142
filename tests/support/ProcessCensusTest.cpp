#include "support/ProcessCensus.h"

#include <atomic>
#include <thread>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Loadwick {

TEST(ProcessCensusTest, countsOpenDescriptors)
{
    const ProcessCensus before = ProcessCensus::now();
    const int descriptor = open("/dev/null", O_RDONLY | O_CLOEXEC);
    EXPECT_EQ(ProcessCensus::now().descriptors, before.descriptors + 1);
    close(descriptor);
    EXPECT_EQ(ProcessCensus::now(), before);
}

TEST(ProcessCensusTest, countsThreads)
{
    const ProcessCensus before = ProcessCensus::now();
    std::atomic<bool> isOver = false;
    std::thread thread([&] {
        while (!isOver)
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
    });
    EXPECT_GE(ProcessCensus::now().threads, before.threads + 1);
    isOver = true;
    thread.join();
}

TEST(ProcessCensusTest, countsChildrenThatEndedAndWereNotReaped)
{
    const ProcessCensus before = ProcessCensus::now();
    char name[] = "true";
    char *arguments[] = {name, nullptr};
    pid_t child = 0;
    ASSERT_EQ(posix_spawn(&child, "/bin/true", nullptr, nullptr, arguments, environ), 0);
    EXPECT_TRUE(eventually([&] { return ProcessCensus::now().zombies == before.zombies + 1; }));
    ASSERT_EQ(waitpid(child, nullptr, 0), child);
    EXPECT_EQ(ProcessCensus::now().zombies, before.zombies);
}

TEST(ProcessCensusTest, comparesEveryCountWithALimit)
{
    const ProcessCensus limit{5, 2, 0};
    EXPECT_TRUE((ProcessCensus{5, 2, 0}.isWithin(limit)));
    EXPECT_TRUE((ProcessCensus{3, 1, 0}.isWithin(limit)));
    EXPECT_FALSE((ProcessCensus{6, 2, 0}.isWithin(limit)));
    EXPECT_FALSE((ProcessCensus{5, 3, 0}.isWithin(limit)));
    EXPECT_FALSE((ProcessCensus{5, 2, 1}.isWithin(limit)));
}

TEST(ProcessCensusTest, pollsUntilSomethingHolds)
{
    int looks = 0;
    EXPECT_TRUE(eventually([&] { return ++looks == 3; }));
    EXPECT_FALSE(eventually([] { return false; }, std::chrono::milliseconds(10)));
}

} // namespace Loadwick
