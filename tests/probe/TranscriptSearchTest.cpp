#include "probe/TranscriptSearch.h"

#include <cmath>
#include <limits>
#include <thread>

#include <gtest/gtest.h>

#include "posix/FileSystem.h"
#include "samples/TemporaryFolder.h"
#include "support/Stopwatch.h"

namespace Loadwick {

namespace {

constexpr std::string_view userLine = R"({"type":"user"})"
                                      "\n";
constexpr std::string_view assistantLine =
    R"({"type":"assistant","message":{"usage":{"input_tokens":7}}})"
    "\n";

// Calls `listing` before every look at a disk.
class ObservedFileSystem : public PosixFileSystem
{
public:
    explicit ObservedFileSystem(std::function<void()> listing) : m_listing(std::move(listing)) {}

    void list(const std::filesystem::path &folder, const Visitor &visit) const override
    {
        m_listing();
        PosixFileSystem::list(folder, visit);
    }

private:
    std::function<void()> m_listing;
};

TranscriptSearch searchUnder(const std::filesystem::path &root, int attempts, double delaySeconds)
{
    return {"session",
            root,
            std::make_shared<PosixFileSystem>(),
            std::make_shared<Shutdown>(),
            attempts,
            delaySeconds,
            Deadline::max()};
}

TranscriptSearch searchIn(const TemporaryFolder &folder, int attempts, double delaySeconds)
{
    return searchUnder(folder.path(), attempts, delaySeconds);
}

int attemptsMade(int attempts)
{
    const TemporaryFolder folder;
    int made = 0;
    TranscriptSearch search = searchIn(folder, attempts, 0);
    search.fileSystem = std::make_shared<ObservedFileSystem>([&] { ++made; });
    EXPECT_EQ(search.run(), std::nullopt);
    return made;
}

} // namespace

TEST(TranscriptSearchTest, findsATranscriptAtOnce)
{
    const TemporaryFolder folder;
    folder.write("project/session.jsonl", assistantLine);
    const Stopwatch watch;
    EXPECT_EQ(searchIn(folder, 12, 60).run(), (ProbeUsage{7, 0, 0, 0}));
    EXPECT_LT(watch.seconds(), 30);
}

TEST(TranscriptSearchTest, triesAsOftenAsItIsTold)
{
    EXPECT_EQ(attemptsMade(3), 3);
    EXPECT_EQ(attemptsMade(1), 1);
    EXPECT_EQ(attemptsMade(0), 1);
    EXPECT_EQ(attemptsMade(-4), 1);
}

TEST(TranscriptSearchTest, usesATranscriptThatIsFirstFoundOnTheFifthAttempt)
{
    const TemporaryFolder folder;
    int made = 0;
    TranscriptSearch search = searchIn(folder, 12, 0.02);
    search.fileSystem = std::make_shared<ObservedFileSystem>([&] {
        if (++made == 5)
            folder.write("session.jsonl", assistantLine);
    });
    const Stopwatch watch;
    EXPECT_EQ(search.run(), (ProbeUsage{7, 0, 0, 0}));
    EXPECT_EQ(made, 5);
    EXPECT_GE(watch.seconds(), 4 * 0.02);
}

TEST(TranscriptSearchTest, triesAgainWhileTheTranscriptHoldsNoUsage)
{
    const TemporaryFolder folder;
    folder.write("session.jsonl", userLine);
    int made = 0;
    TranscriptSearch search = searchIn(folder, 12, 0.001);
    search.fileSystem = std::make_shared<ObservedFileSystem>([&] {
        if (++made == 3)
            folder.write("session.jsonl", std::string(userLine) + std::string(assistantLine));
    });
    EXPECT_EQ(search.run(), (ProbeUsage{7, 0, 0, 0}));
    EXPECT_EQ(made, 3);
}

TEST(TranscriptSearchTest, endsBetweenTwoAttemptsWhenTheProgramDoes)
{
    const TemporaryFolder folder;
    const TranscriptSearch search = searchIn(folder, 12, 60);
    std::thread quitting([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        search.shutdown->request();
    });
    const Stopwatch watch;
    EXPECT_EQ(search.run(), std::nullopt);
    EXPECT_LT(watch.seconds(), 30);
    quitting.join();
}

TEST(TranscriptSearchTest, beginsNoAttemptAfterItsDeadline)
{
    const TemporaryFolder folder;
    int made = 0;
    TranscriptSearch search = searchIn(folder, 1'000'000, 0.01);
    search.fileSystem = std::make_shared<ObservedFileSystem>([&] { ++made; });
    search.deadline = deadlineAfter(0);
    EXPECT_EQ(search.run(), std::nullopt);
    EXPECT_EQ(made, 1);
}

TEST(TranscriptSearchTest, endsTheProgramOnADelayThatIsNoDuration)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    // No folder of its own: a program that dies leaves it behind.
    EXPECT_DEATH((void)searchUnder("/nowhere", 2, -0.1).run(), "is no duration");
    EXPECT_DEATH((void)searchUnder("/nowhere", 2, std::nan("")).run(), "is no duration");
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_DEATH((void)searchUnder("/nowhere", 2, infinity).run(), "is no duration");
}

} // namespace Loadwick
