#include "process/ChildSupervision.h"

#include <csignal>
#include <optional>
#include <thread>

#include <gtest/gtest.h>
#include <pthread.h>
#include <unistd.h>

#include "samples/TemporaryFolder.h"
#include "support/DescriptorShortage.h"
#include "support/HostileChild.h"
#include "support/ProcessCensus.h"
#include "support/Sanitizers.h"
#include "support/Stopwatch.h"

namespace Loadwick {

namespace {

#ifdef __SANITIZE_THREAD__
constexpr long sanitizersWakes = 12; ///< a second: its own thread wakes ten times
#else
constexpr long sanitizersWakes = 0;
#endif

ChildSupervision::Request hostileRequest(std::vector<std::string> arguments)
{
    return {.command = {hostileChildPath(), std::move(arguments), {}, std::nullopt},
            .limits = {.timeoutSeconds = 30,
                       .killGraceSeconds = 0.1,
                       .readerGraceSeconds = 0.1,
                       .captureLimit = 1000},
            .capture = ChildSupervision::Capture::bothStreams,
            .shutdown = nullptr};
}

// While it lives, no thread of this program can be started: no stack can be that large.
class ThreadShortage
{
public:
    ThreadShortage()
    {
        pthread_getattr_default_np(&m_usual);
        pthread_attr_t unpayable = m_usual;
        pthread_attr_setstacksize(&unpayable, std::size_t{1} << 47U);
        pthread_setattr_default_np(&unpayable);
    }
    ~ThreadShortage()
    {
        pthread_setattr_default_np(&m_usual);
        pthread_attr_destroy(&m_usual);
    }
    ThreadShortage(const ThreadShortage &) = delete;
    ThreadShortage &operator=(const ThreadShortage &) = delete;

private:
    pthread_attr_t m_usual;
};

} // namespace

TEST(ChildSupervisionTest, returnsTheBytesUnchanged)
{
    const auto outcome = ChildSupervision::run(hostileRequest({"half"}));
    EXPECT_EQ(outcome.standardOutput, "half \xE2\x82");
    EXPECT_EQ(outcome.standardError, "whole \xE2\x82\xAC");
    EXPECT_EQ(outcome.ending, (ChildProcess::Ending{0, false}));
}

TEST(ChildSupervisionTest, distinguishesNoOutputFromTooMuch)
{
    EXPECT_EQ(ChildSupervision::run(hostileRequest({"print", "", "", "0"})).standardOutput, "");
    EXPECT_EQ(ChildSupervision::run(hostileRequest({"flood", "1001"})).standardOutput,
              std::nullopt);
}

TEST(ChildSupervisionTest, readsStandardErrorOnlyWhenAsked)
{
    ChildSupervision::Request request = hostileRequest({"print", "out", "error", "0"});
    request.capture = ChildSupervision::Capture::standardOutputOnly;
    const auto outcome = ChildSupervision::run(request);
    EXPECT_EQ(outcome.standardOutput, "out");
    EXPECT_EQ(outcome.standardError, "");
}

TEST(ChildSupervisionTest, leavesNoChildBehindWhenThereAreNoThreads)
{
    const ProcessCensus before = ProcessCensus::now();
    try {
        const ThreadShortage shortage;
        (void)ChildSupervision::run(hostileRequest({"close-output"}));
        ADD_FAILURE() << "ran without readers";
    } catch (const ChildSupervision::StartFailed &) {
        ADD_FAILURE() << "the child itself can be started";
    } catch (const std::system_error &error) {
        EXPECT_EQ(error.code(), std::errc::resource_unavailable_try_again);
    }
    EXPECT_TRUE(eventually([&] { return ProcessCensus::now().isWithin(before); }));
}

TEST(ChildSupervisionTest, leavesNothingBehindWhenTheChildCannotStart)
{
    const ProcessCensus before = ProcessCensus::now();
    ChildSupervision::Request request = hostileRequest({});
    request.command.executable = "/nowhere";
    EXPECT_THROW((void)ChildSupervision::run(request), ChildSupervision::StartFailed);
    EXPECT_TRUE(ProcessCensus::now().isWithin(before));
}

TEST(ChildSupervisionTest, cannotStartWithoutDescriptors)
{
    const DescriptorShortage shortage;
    EXPECT_THROW((void)ChildSupervision::run(hostileRequest({})), ChildSupervision::StartFailed);
}

TEST(ChildSupervisionTest, sleepsWhileItsChildRuns)
{
    ChildSupervision::Request request = hostileRequest({});
    request.command = {"/bin/sleep", {"30"}, {}, std::nullopt};
    request.shutdown = std::make_shared<Shutdown>();
    const ProcessCensus before = ProcessCensus::now();
    std::thread supervising([&] { (void)ChildSupervision::run(request); });
    // That thread and two readers.
    EXPECT_TRUE(eventually([&] { return ProcessCensus::now().threads == before.threads + 3; }));
    std::this_thread::sleep_for(std::chrono::milliseconds(300)); // they come to rest
    const long wakes = wakeCount();
    std::this_thread::sleep_for(std::chrono::seconds(1));
    EXPECT_LE(wakeCount() - wakes, 3 + sanitizersWakes);
    request.shutdown->stopChildren(std::chrono::seconds(20));
    supervising.join();
}

TEST(ChildSupervisionTest, stopsItsChildWhenTheProgramEnds)
{
    ChildSupervision::Request request = hostileRequest({"close-output"});
    request.shutdown = std::make_shared<Shutdown>();
    std::thread quitting([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
        request.shutdown->stopChildren(std::chrono::seconds(20));
    });
    const Stopwatch watch;
    const auto outcome = ChildSupervision::run(request);
    quitting.join();
    EXPECT_EQ(outcome.ending, (ChildProcess::Ending{SIGTERM, true}));
    EXPECT_FALSE(outcome.terminationRequested);
    EXPECT_LT(watch.seconds(), 15);
}

} // namespace Loadwick
