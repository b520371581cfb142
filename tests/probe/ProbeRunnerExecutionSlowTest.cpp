#include <csignal>
#include <fstream>
#include <thread>

#include <gtest/gtest.h>

#include "probe/ProbeOutputParser.h"
#include "probe/ProbeRunner.h"
#include "samples/TemporaryFolder.h"
#include "support/HostileChild.h"
#include "support/ProcessCensus.h"
#include "support/ProcessMemory.h"
#include "support/Sanitizers.h"
#include "support/Stopwatch.h"

namespace Loadwick {

namespace {

constexpr std::size_t mebibyte = 1024 * 1024;
constexpr std::size_t gibibyte = 1024 * mebibyte;

// In bytes; 0 where the system cannot tell.
std::size_t availableMemory()
{
    std::ifstream file("/proc/meminfo");
    for (std::string word; file >> word;)
        if (std::size_t kibibytes = 0; word == "MemAvailable:" && file >> kibibytes)
            return kibibytes * 1024;
    return 0;
}

// Ten children, each with limits of 50 ms.
void runEveryQuickKind()
{
    const std::vector<std::vector<std::string>> kinds{{"print", "out", "error", "0"},
                                                      {"half"},
                                                      {"stop"},
                                                      {"ignore-term"},
                                                      {"trap-term", "143"},
                                                      {"flood", "200000"},
                                                      {"close-output"},
                                                      {"grandchild", "120"},
                                                      {"daemon", "120"},
                                                      {"missing"}};
    for (const std::vector<std::string> &kind : kinds) {
        ProbeRunner::Launch launch = hostileLaunch(kind);
        launch.limits.timeoutSeconds = launch.limits.killGraceSeconds =
            launch.limits.readerGraceSeconds = 0.05;
        const Stopwatch watch;
        (void)ProbeRunner::execute(launch);
        EXPECT_LT(watch.seconds(), longestSeconds(launch)) << kind.front();
    }
}

} // namespace

TEST(ProbeRunnerExecutionSlowTest, capturesOneGibibyteOfBothStreams)
{
    if (isSanitized || availableMemory() < 5 * gibibyte)
        GTEST_SKIP() << "needs 5 GiB of memory and no sanitizer";
    ProbeRunner::Launch launch = hostileLaunch({"flood", std::to_string(gibibyte)});
    launch.limits.timeoutSeconds = 100;
    const Execution execution = ProbeRunner::execute(launch);
    EXPECT_EQ(execution.standardOutput.size(), gibibyte);
    EXPECT_EQ(execution.standardError.size(), gibibyte);
    EXPECT_EQ(execution.exitCode, 0);
}

TEST(ProbeRunnerExecutionSlowTest, endsInTimeDuringAFloodOfOutput)
{
    if (isSanitized)
        GTEST_SKIP() << "needs no sanitizer";
    ProbeRunner::Launch launch = hostileLaunch({"flood", std::to_string(8 * gibibyte)});
    launch.limits.captureLimit = 8 * mebibyte;
    const Stopwatch watch;
    const Execution execution = ProbeRunner::execute(launch);
    EXPECT_LT(watch.seconds(), longestSeconds(launch));
    EXPECT_TRUE(execution.timedOut);
    EXPECT_EQ(execution.standardOutput, "");
}

TEST(ProbeRunnerExecutionSlowTest, leaksNothingInAThousandRuns)
{
    const ProcessCensus before = ProcessCensus::now();
    std::vector<std::thread> threads;
    for (int count = 0; count < 4; ++count)
        threads.emplace_back([] {
            for (int round = 0; round < 25; ++round)
                runEveryQuickKind();
        });
    for (std::thread &thread : threads)
        thread.join();
    EXPECT_TRUE(eventually([&] { return ProcessCensus::now().isWithin(before); }))
        << testing::PrintToString(ProcessCensus::now()) << " instead of "
        << testing::PrintToString(before);
}

TEST(ProbeRunnerExecutionSlowTest, abandonsAChildThatSurvivesItsKillAndReapsItLater)
{
    const ProcessCensus before = ProcessCensus::now();
    const Stopwatch watch;
    const Execution execution = ProbeRunner::execute(hostileLaunch({"survive-kill", "9000"}));
    if (execution.standardOutput != "ready\n")
        GTEST_SKIP() << "no process may trace another here";
    EXPECT_TRUE(execution.timedOut);
    EXPECT_EQ(execution.exitCode, SIGKILL);
    EXPECT_GE(watch.seconds(), 0.5 + ChildProcess::survivalSeconds);
    EXPECT_LT(watch.seconds(), 8.9);
    EXPECT_FALSE(ProcessCensus::now().isWithin(before));
    EXPECT_TRUE(eventually([&] { return ProcessCensus::now().isWithin(before); },
                           std::chrono::seconds(20)));
}

TEST(ProbeRunnerExecutionSlowTest, takesLittleMoreMemoryThanWhatItCaptures)
{
    if (isSanitized)
        GTEST_SKIP() << "a sanitizer's own memory counts too";
    const TemporaryFolder folder;
    constexpr std::size_t captured = 200 * mebibyte;
    folder.write("record",
                 "{\"session_id\":\"abc\",\"result\":\"" + std::string(captured, 'x') + "\"}");
    ProbeRunner::Launch launch = hostileLaunch({});
    launch.cli = folder.writeScript("claude", "#!/bin/sh\ncat '" + folder.path().string() +
                                                  "/record'\nsleep 1\n");
    launch.environment = {{"PATH", "/usr/bin:/bin"}};
    launch.limits.timeoutSeconds = 100;
    const PeakMemory memory;
    const Execution execution = ProbeRunner::execute(launch);
    const std::size_t capturing = memory.growthInBytes();
    (void)ProbeOutputParser::parse(execution.standardOutput, "", 0);
    const std::size_t parsing = memory.growthInBytes();

    EXPECT_EQ(execution.standardOutput.size(), captured + 32);
    EXPECT_LT(capturing, captured * 22 / 10);
    EXPECT_LT(parsing, captured * 22 / 10);
    RecordProperty("capturingAndJoiningBytes", std::to_string(capturing));
    RecordProperty("parsingBytes", std::to_string(parsing));
}

} // namespace Loadwick
