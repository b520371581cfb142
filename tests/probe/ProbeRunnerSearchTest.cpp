#include "probe/ProbeRunner.h"

#include <atomic>
#include <cmath>
#include <limits>
#include <thread>

#include <gtest/gtest.h>

#include "posix/FileSystem.h"
#include "samples/TemporaryFolder.h"
#include "support/ProcessCensus.h"
#include "support/Stopwatch.h"

namespace Loadwick {

namespace {

constexpr std::string_view userLine = R"({"type":"user"})"
                                      "\n";
constexpr std::string_view assistantLine =
    R"({"type":"assistant","message":{"usage":{"input_tokens":7}}})"
    "\n";

// Calls `listing` before every access to the disk.
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

// A disk with a folder in every folder; counts its listings.
class EndlessFileSystem : public FileSystem
{
public:
    explicit EndlessFileSystem(std::shared_ptr<std::atomic<int>> listed)
        : m_listed(std::move(listed))
    {}

    void list(const std::filesystem::path &, const Visitor &visit) const override
    {
        ++*m_listed;
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
        visit("folder", EntryKind::folder);
    }
    [[nodiscard]] bool mayHold(const std::filesystem::path &) const override { return true; }

private:
    std::shared_ptr<std::atomic<int>> m_listed;
};

ProbeRunner::Settings searching(const std::filesystem::path &root, int attempts,
                                double delaySeconds)
{
    ProbeRunner::Settings settings;
    settings.projectsRoot = root;
    settings.fileSystem = std::make_shared<PosixFileSystem>();
    settings.shutdown = std::make_shared<Shutdown>();
    settings.transcriptRetries = attempts;
    settings.transcriptRetryDelay = delaySeconds;
    settings.transcriptSearchSeconds = 120;
    return settings;
}

std::optional<ProbeUsage> usageBy(const ProbeRunner::Settings &settings)
{
    return ProbeRunner(settings).transcriptUsage("session");
}

int attemptsMade(int attempts)
{
    const TemporaryFolder folder;
    int made = 0;
    ProbeRunner::Settings search = searching(folder.path(), attempts, 0);
    search.fileSystem = std::make_shared<ObservedFileSystem>([&] { ++made; });
    EXPECT_EQ(usageBy(search), std::nullopt);
    return made;
}

} // namespace

TEST(ProbeRunnerSearchTest, findsATranscriptAtTheFirstAttempt)
{
    const TemporaryFolder folder;
    folder.write("project/session.jsonl", assistantLine);
    const Stopwatch watch;
    EXPECT_EQ(usageBy(searching(folder.path(), 12, 60)), (ProbeUsage{7, 0, 0, 0}));
    EXPECT_LT(watch.seconds(), 30);
}

TEST(ProbeRunnerSearchTest, makesTheConfiguredNumberOfAttempts)
{
    EXPECT_EQ(attemptsMade(3), 3);
    EXPECT_EQ(attemptsMade(1), 1);
    EXPECT_EQ(attemptsMade(0), 1);
    EXPECT_EQ(attemptsMade(-4), 1);
}

TEST(ProbeRunnerSearchTest, usesATranscriptFoundOnTheFifthAttempt)
{
    const TemporaryFolder folder;
    int made = 0;
    ProbeRunner::Settings search = searching(folder.path(), 12, 0.02);
    search.fileSystem = std::make_shared<ObservedFileSystem>([&] {
        if (++made == 5)
            folder.write("session.jsonl", assistantLine);
    });
    const Stopwatch watch;
    EXPECT_EQ(usageBy(search), (ProbeUsage{7, 0, 0, 0}));
    EXPECT_EQ(made, 5);
    EXPECT_GE(watch.seconds(), 4 * 0.02);
}

TEST(ProbeRunnerSearchTest, retriesWhileTheTranscriptHoldsNoUsage)
{
    const TemporaryFolder folder;
    folder.write("session.jsonl", userLine);
    int made = 0;
    ProbeRunner::Settings search = searching(folder.path(), 12, 0.001);
    search.fileSystem = std::make_shared<ObservedFileSystem>([&] {
        if (++made == 3)
            folder.write("session.jsonl", std::string(userLine) + std::string(assistantLine));
    });
    EXPECT_EQ(usageBy(search), (ProbeUsage{7, 0, 0, 0}));
    EXPECT_EQ(made, 3);
}

TEST(ProbeRunnerSearchTest, stopsBetweenAttemptsWhenTheProgramEnds)
{
    const TemporaryFolder folder;
    ProbeRunner::Settings search = searching(folder.path(), 12, 60);
    std::thread quitting([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        search.shutdown->request();
    });
    const Stopwatch watch;
    EXPECT_EQ(usageBy(search), std::nullopt);
    EXPECT_LT(watch.seconds(), 30);
    quitting.join();
}

TEST(ProbeRunnerSearchTest, startsNoAttemptAfterItsLimit)
{
    const TemporaryFolder folder;
    const auto made = std::make_shared<std::atomic<int>>(0);
    ProbeRunner::Settings search = searching(folder.path(), 1'000'000, 0.01);
    search.fileSystem = std::make_shared<ObservedFileSystem>([made] { ++*made; });
    search.transcriptSearchSeconds = 0;
    EXPECT_EQ(usageBy(search), std::nullopt);
    // The search continues alone until it sees that its time is up.
    std::this_thread::sleep_for(std::chrono::milliseconds(300));
    EXPECT_LE(*made, 1);
}

TEST(ProbeRunnerSearchTest, stopsReadingAtItsLimit)
{
    const TemporaryFolder folder;
    const auto transcript = folder.write("session.jsonl", userLine);
    std::filesystem::resize_file(transcript, std::uintmax_t{1} << 40); // takes minutes to read
    const ProcessCensus before = ProcessCensus::now();
    ProbeRunner::Settings search = searching(folder.path(), 1, 0);
    search.transcriptSearchSeconds = 0.2;
    EXPECT_EQ(usageBy(search), std::nullopt);
    EXPECT_TRUE(eventually([&] { return ProcessCensus::now().isWithin(before); }));
}

TEST(ProbeRunnerSearchTest, stopsWalkingAtItsLimit)
{
    const TemporaryFolder folder;
    const auto listed = std::make_shared<std::atomic<int>>(0);
    ProbeRunner::Settings search = searching(folder.path(), 1, 0);
    search.fileSystem = std::make_shared<EndlessFileSystem>(listed);
    search.transcriptSearchSeconds = 0.2;
    const ProcessCensus before = ProcessCensus::now();
    EXPECT_EQ(usageBy(search), std::nullopt);
    EXPECT_GT(*listed, 1);
    EXPECT_TRUE(eventually([&] { return ProcessCensus::now().isWithin(before); }));
}

TEST(ProbeRunnerSearchTest, endsTheProgramOnAnInvalidDelay)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    // A fixed folder: a program that dies would leave a temporary one behind.
    EXPECT_DEATH((void)usageBy(searching("/nowhere", 2, -0.1)), "is no duration");
    EXPECT_DEATH((void)usageBy(searching("/nowhere", 2, std::nan(""))), "is no duration");
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_DEATH((void)usageBy(searching("/nowhere", 2, infinity)), "is no duration");
}

} // namespace Loadwick
