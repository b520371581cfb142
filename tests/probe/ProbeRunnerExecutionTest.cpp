#include <csignal>

#include <fcntl.h>
#include <gtest/gtest.h>

#include "probe/ProbeError.h"
#include "probe/ProbeRunner.h"
#include "samples/TemporaryFolder.h"
#include "support/HostileChild.h"
#include "support/ProcessCensus.h"
#include "support/Stopwatch.h"

namespace Loadwick {

namespace {

Execution executeInTime(const ProbeRunner::Launch &launch)
{
    const Stopwatch watch;
    Execution execution = ProbeRunner::execute(launch);
    EXPECT_LT(watch.seconds(), longestSeconds(launch));
    return execution;
}

// For children that end by themselves: the time-out must not come first on a slow machine.
ProbeRunner::Launch patientLaunch(std::vector<std::string> arguments)
{
    ProbeRunner::Launch launch = hostileLaunch(std::move(arguments));
    launch.limits.timeoutSeconds = 30;
    return launch;
}

/// While it lives, nobody can open the file, as on a disk that does not answer: the system first
/// waits for this process to give up its lease.
class StuckFile
{
public:
    explicit StuckFile(const std::string &path)
        : m_descriptor(open(path.c_str(), O_RDONLY | O_CLOEXEC))
    {
        // The system's request to give it up; a signal that is ignored by default.
        EXPECT_EQ(fcntl(m_descriptor.number(), F_SETSIG, SIGURG), 0);
        EXPECT_EQ(fcntl(m_descriptor.number(), F_SETLEASE, F_WRLCK), 0);
    }

private:
    FileDescriptor m_descriptor;
};

std::string startFailure(const ProbeRunner::Launch &launch)
{
    try {
        (void)ProbeRunner::execute(launch);
    } catch (const ProbeError &error) {
        if (const auto *text = std::get_if<ProbeError::UnreadableOutput>(&error.value()))
            return text->text;
    }
    return "no failure to start";
}

} // namespace

TEST(ProbeRunnerExecutionTest, capturesNothingFromAChildThatExitsImmediately)
{
    const Execution execution = executeInTime(patientLaunch({"print", "", "", "0"}));
    EXPECT_EQ(execution, Execution{});
}

TEST(ProbeRunnerExecutionTest, capturesBothStreamsAndTheExitStatus)
{
    const Execution execution = executeInTime(patientLaunch({"print", "out é", "error", "3"}));
    EXPECT_EQ(execution,
              (Execution{.exitCode = 3, .standardOutput = "out é", .standardError = "error"}));
}

TEST(ProbeRunnerExecutionTest, capturesMoreThanAPipeHoldsWhileBothStreamsFlood)
{
    const Execution execution = executeInTime(patientLaunch({"flood", "3000000"}));
    EXPECT_EQ(execution.standardOutput.size(), 3'000'000U);
    EXPECT_EQ(execution.standardError.size(), 3'000'000U);
    EXPECT_EQ(execution.exitCode, 0);
}

TEST(ProbeRunnerExecutionTest, keepsAStreamOfExactlyTheCaptureLimit)
{
    ProbeRunner::Launch launch = patientLaunch({"flood", "8388608"});
    launch.limits.captureLimit = 8'388'608;
    const Execution execution = executeInTime(launch);
    EXPECT_EQ(execution.standardOutput.size(), launch.limits.captureLimit);
    EXPECT_EQ(execution.standardError.size(), launch.limits.captureLimit);
}

TEST(ProbeRunnerExecutionTest, drainsAStreamBeyondTheCaptureLimitAndDropsIt)
{
    ProbeRunner::Launch launch = patientLaunch({"flood", "12000000"});
    launch.limits.captureLimit = 8'388'608;
    EXPECT_EQ(executeInTime(launch), Execution{});
}

TEST(ProbeRunnerExecutionTest, decodesEachStreamSeparately)
{
    const Execution execution = executeInTime(patientLaunch({"half"}));
    EXPECT_EQ(execution.standardOutput, "");
    EXPECT_EQ(execution.standardError, "whole €");
}

TEST(ProbeRunnerExecutionTest, stopsAChildAtTheTimeout)
{
    const Stopwatch watch;
    const Execution execution = executeInTime(hostileLaunch({"close-output"}));
    EXPECT_GE(watch.seconds(), 0.3);
    EXPECT_TRUE(execution.timedOut);
    EXPECT_TRUE(execution.terminationRequested);
    EXPECT_FALSE(execution.readersTimedOut);
    EXPECT_EQ(execution.exitCode, SIGTERM);
}

TEST(ProbeRunnerExecutionTest, countsTheStartIntoTheTimeout)
{
    const TemporaryFolder folder;
    ProbeRunner::Launch launch = hostileLaunch({});
    launch.cli = folder.writeScript("claude", "#!/bin/sh\nexec sleep 30\n").string();
    const StuckFile stuck(launch.cli);
    Execution expected;
    expected.exitCode = SIGKILL;
    expected.timedOut = expected.terminationRequested = true;
    EXPECT_EQ(executeInTime(launch), expected);
}

TEST(ProbeRunnerExecutionTest, endsAChildThatStartsAfterTheTimeout)
{
    const TemporaryFolder folder;
    ProbeRunner::Launch launch = hostileLaunch({});
    launch.cli = folder.writeScript("claude", "#!/bin/sh\nexec sleep 30\n").string();
    for (const bool isProgramEnding : {false, true}) {
        launch.shutdown = std::make_shared<Shutdown>();
        const ProcessCensus before = ProcessCensus::now();
        {
            const StuckFile stuck(launch.cli);
            EXPECT_TRUE(executeInTime(launch).timedOut);
            if (isProgramEnding)
                launch.shutdown->request();
        }
        EXPECT_TRUE(eventually([&] { return ProcessCensus::now().isWithin(before); }));
        const Stopwatch watch;
        launch.shutdown->stopChildren(std::chrono::seconds(20));
        EXPECT_LT(watch.seconds(), 10) << "the child is still listed";
    }
}

TEST(ProbeRunnerExecutionTest, keepsTheOutputOfAChildThatClosedItAndLivedOn)
{
    EXPECT_EQ(executeInTime(hostileLaunch({"close-output"})).standardOutput, "last words");
}

TEST(ProbeRunnerExecutionTest, killsAChildThatIgnoresTheRequestAfterTheKillGrace)
{
    const Stopwatch watch;
    const Execution execution = executeInTime(hostileLaunch({"ignore-term"}));
    EXPECT_GE(watch.seconds(), 0.3 + 0.2);
    EXPECT_TRUE(execution.timedOut);
    EXPECT_EQ(execution.exitCode, SIGKILL);
    EXPECT_EQ(execution.standardOutput, "ready\n");
}

TEST(ProbeRunnerExecutionTest, killsAChildThatStoppedItself)
{
    const Execution execution = executeInTime(hostileLaunch({"stop"}));
    EXPECT_TRUE(execution.timedOut);
    EXPECT_EQ(execution.exitCode, SIGKILL);
}

TEST(ProbeRunnerExecutionTest, doesNotCountALateExitAsTimedOut)
{
    ProbeRunner::Launch launch = hostileLaunch({"trap-term", "143"});
    launch.limits.killGraceSeconds = 5;
    const Execution execution = executeInTime(launch);
    EXPECT_FALSE(execution.timedOut);
    EXPECT_TRUE(execution.terminationRequested);
    EXPECT_EQ(execution.exitCode, 143);
}

TEST(ProbeRunnerExecutionTest, doesNotCountAForeignSignalAsTimedOut)
{
    const TemporaryFolder folder;
    ProbeRunner::Launch launch = patientLaunch({});
    launch.cli = folder.writeScript("claude", "#!/bin/sh\nkill -TERM $$\n").string();
    Execution expected;
    expected.exitCode = SIGTERM;
    EXPECT_EQ(executeInTime(launch), expected);
}

TEST(ProbeRunnerExecutionTest, stopsReadingWhenABackgroundProcessKeepsTheOutputOpen)
{
    const Stopwatch watch;
    const Execution execution = executeInTime(patientLaunch({"grandchild", "5000"}));
    EXPECT_GE(watch.seconds(), 0.2);
    EXPECT_LT(watch.seconds(), 4.5);
    EXPECT_TRUE(execution.readersTimedOut);
    EXPECT_FALSE(execution.timedOut);
    EXPECT_EQ(execution.exitCode, 0);
    EXPECT_EQ(execution.standardOutput, "early\n");
}

TEST(ProbeRunnerExecutionTest, waitsForABackgroundProcessThatEndsWithinTheReaderGrace)
{
    ProbeRunner::Launch launch = patientLaunch({"grandchild", "50"});
    launch.limits.readerGraceSeconds = 20;
    const Execution execution = executeInTime(launch);
    EXPECT_FALSE(execution.readersTimedOut);
    EXPECT_EQ(execution.standardOutput, "early\nlate\n");
}

TEST(ProbeRunnerExecutionTest, stopsReadingWhenADaemonKeepsTheOutputOpen)
{
    const Stopwatch watch;
    const Execution execution = executeInTime(patientLaunch({"daemon", "5000"}));
    EXPECT_LT(watch.seconds(), 4.5);
    EXPECT_TRUE(execution.readersTimedOut);
    EXPECT_EQ(execution.standardOutput, "gone\n");
}

TEST(ProbeRunnerExecutionTest, signalsNothingAfterANormalEnd)
{
    const TemporaryFolder folder;
    const std::filesystem::path mark = folder.path() / "lived-on";
    EXPECT_EQ(executeInTime(patientLaunch({"quiet-grandchild", "300", mark.string()})),
              Execution{});
    EXPECT_FALSE(std::filesystem::exists(mark));
    EXPECT_TRUE(eventually([&] { return std::filesystem::exists(mark); }));
}

TEST(ProbeRunnerExecutionTest, sweepsTheGroupAfterATimeout)
{
    const TemporaryFolder folder;
    const std::filesystem::path mark = folder.path() / "lived-on";
    ProbeRunner::Launch launch = hostileLaunch({"quiet-grandchild", "1500", mark.string(), "stay"});
    EXPECT_TRUE(executeInTime(launch).timedOut);
    EXPECT_FALSE(
        eventually([&] { return std::filesystem::exists(mark); }, std::chrono::milliseconds(1200)));
}

TEST(ProbeRunnerExecutionTest, sweepsTheSessionBehindAStoppedWrapper)
{
    const TemporaryFolder folder;
    ProbeRunner::Launch launch = hostileLaunch({});
    const std::string inner = "'" + hostileChildPath() + "' ignore-term";
    launch.cli = folder.writeScript("claude", "#!/bin/sh\n" + inner + "\necho never\n").string();
    const ProcessCensus before = ProcessCensus::now();
    const Execution execution = executeInTime(launch);
    EXPECT_TRUE(execution.timedOut);
    EXPECT_TRUE(execution.readersTimedOut);
    EXPECT_TRUE(eventually([&] { return ProcessCensus::now().isWithin(before); }));
}

TEST(ProbeRunnerExecutionTest, reportsWhatCouldNotBeStartedAndWhy)
{
    const TemporaryFolder folder;
    ProbeRunner::Launch launch = hostileLaunch({});
    launch.cli = "/nowhere/claude";
    EXPECT_EQ(startFailure(launch), "Could not start /nowhere/claude: No such file or directory");
    launch.cli = folder.write("cl\xFF", "text").string();
    EXPECT_EQ(startFailure(launch),
              "Could not start " + folder.path().string() + "/cl\xEF\xBF\xBD: Permission denied");
}

TEST(ProbeRunnerExecutionTest, reportsAMissingFolder)
{
    ProbeRunner::Launch launch = hostileLaunch({"describe"});
    launch.repository = "/nowhere";
    EXPECT_EQ(startFailure(launch),
              "Could not start " + hostileChildPath() + ": No such file or directory");
}

TEST(ProbeRunnerExecutionTest, startsInAFolderWithAnIllFormedName)
{
    const TemporaryFolder folder;
    ProbeRunner::Launch launch = patientLaunch({"print", "here", "", "0"});
    launch.repository = folder.path() / "odd\xFF";
    std::filesystem::create_directory(launch.repository);
    EXPECT_EQ(executeInTime(launch).standardOutput, "here");
}

TEST(ProbeRunnerExecutionTest, startsNothingOnceTheProgramEnds)
{
    ProbeRunner::Launch launch = hostileLaunch({"close-output"});
    launch.shutdown = std::make_shared<Shutdown>();
    launch.shutdown->request();
    EXPECT_EQ(startFailure(launch),
              "Could not start " + hostileChildPath() + ": Operation canceled");
}

TEST(ProbeRunnerExecutionTest, leaksNothing)
{
    const ProcessCensus before = ProcessCensus::now();
    for (const std::string verb : {"half", "close-output", "stop", "ignore-term"})
        (void)executeInTime(hostileLaunch({verb}));
    EXPECT_TRUE(eventually([&] { return ProcessCensus::now().isWithin(before); }));
}

} // namespace Loadwick
