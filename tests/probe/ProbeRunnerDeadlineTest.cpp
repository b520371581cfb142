#include <thread>

#include <gtest/gtest.h>

#include "posix/FileSystem.h"
#include "probe/ProbeError.h"
#include "probe/ProbeRunner.h"
#include "samples/TemporaryFolder.h"
#include "support/ProbeSettings.h"
#include "support/Stopwatch.h"

namespace Loadwick {

namespace {

constexpr const char *complete = R"({"session_id":"abc","result":"","usage":{"input_tokens":5},)"
                                 R"("num_turns":1})";
constexpr const char *failed = R"({"session_id":"abc","result":"no","is_error":true})";
constexpr const char *notSignedIn = R"({"result":"Please run /login","is_error":true})";

// Keeps the signal from killing a stopped session's shell, so that it exits on its own.
constexpr const char *exitsWith143 = "trap 'exit 143' TERM\n"
                                     "while :; do sleep 0.02; done\n";

// A disk that does not answer during a test.
class StuckFileSystem final : public FileSystem
{
public:
    void list(const std::filesystem::path &, const Visitor &) const override
    {
        std::this_thread::sleep_for(std::chrono::milliseconds(800));
    }
    [[nodiscard]] bool mayHold(const std::filesystem::path &) const override { return true; }
};

struct Run
{
    std::string script;
    double timeoutSeconds = 30;
    std::shared_ptr<const FileSystem> fileSystem = std::make_shared<PosixFileSystem>();
    double transcriptSearchSeconds = 30;
    double transcriptRetryDelay = 0.01;
    std::shared_ptr<Shutdown> shutdown = std::make_shared<Shutdown>();
};

std::optional<ProbeError> errorOf(const Run &run)
{
    const TemporaryFolder folder;
    folder.writeScript(".local/bin/claude", "#!/bin/sh\n" + run.script);
    ProbeRunner::Settings settings = probeSettingsIn(folder.path());
    settings.fileSystem = run.fileSystem;
    settings.shutdown = run.shutdown;
    settings.transcriptRetryDelay = run.transcriptRetryDelay;
    settings.transcriptSearchSeconds = run.transcriptSearchSeconds;
    settings.limits.timeoutSeconds = run.timeoutSeconds;
    settings.limits.killGraceSeconds = 10;
    settings.limits.readerGraceSeconds = 0.2;
    try {
        (void)ProbeRunner(settings).run(folder.path());
    } catch (const ProbeError &error) {
        return error;
    }
    return std::nullopt;
}

std::string printing(const char *text)
{
    return "echo '" + std::string(text) + "'\n";
}

} // namespace

TEST(ProbeRunnerDeadlineTest, reportsAKilledSessionAsTimedOutDespiteItsOutput)
{
    for (const char *const text : {"{\"session_id\":", complete, failed})
        EXPECT_EQ(errorOf({.script = printing(text) + "exec sleep 30\n", .timeoutSeconds = 0.3}),
                  ProbeError::timedOut())
            << text;
}

TEST(ProbeRunnerDeadlineTest, reportsAStoppedSessionThatExitsAsTimedOut)
{
    EXPECT_EQ(errorOf({.script = exitsWith143, .timeoutSeconds = 0.5}), ProbeError::timedOut());
}

TEST(ProbeRunnerDeadlineTest, ignoresASignInComplaintInPartialOutputOfAStoppedSession)
{
    EXPECT_EQ(errorOf({.script = "echo 'Invalid API key' >&2\necho '{\"session_id\":'\n" +
                                 std::string(exitsWith143),
                       .timeoutSeconds = 0.5}),
              ProbeError::timedOut());
}

TEST(ProbeRunnerDeadlineTest, readsTheCompleteRecordOfAStoppedSessionThatExits)
{
    EXPECT_EQ(errorOf({.script = printing(complete) + exitsWith143, .timeoutSeconds = 0.5}),
              std::nullopt);
    EXPECT_EQ(errorOf({.script = printing(failed) + exitsWith143, .timeoutSeconds = 0.5}),
              ProbeError::sessionFailed("no"));
    EXPECT_EQ(errorOf({.script = printing(notSignedIn) + exitsWith143, .timeoutSeconds = 0.5}),
              ProbeError::notAuthenticated());
}

TEST(ProbeRunnerDeadlineTest, reportsPartialOutputOfAStoppedReaderAsTimedOut)
{
    EXPECT_EQ(errorOf({.script = "echo '{\"session_id\":'\nsleep 3 &\n"}), ProbeError::timedOut());
}

TEST(ProbeRunnerDeadlineTest, readsTheCompleteRecordOfAStoppedReader)
{
    EXPECT_EQ(errorOf({.script = printing(complete) + "sleep 3 &\n"}), std::nullopt);
}

TEST(ProbeRunnerDeadlineTest, continuesWithoutATranscriptWhenTheDiskHangs)
{
    const Stopwatch watch;
    EXPECT_EQ(errorOf({.script = printing(complete),
                       .fileSystem = std::make_shared<StuckFileSystem>(),
                       .transcriptSearchSeconds = 0.05}),
              std::nullopt);
    EXPECT_GE(watch.seconds(), 0.05);
    // The search continues alone; it must end before the program does, for the leak checker.
    std::this_thread::sleep_for(std::chrono::milliseconds(1900));
}

TEST(ProbeRunnerDeadlineTest, endsItsTranscriptSearchWithTheProgram)
{
    const auto shutdown = std::make_shared<Shutdown>();
    std::thread quitting([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(300));
        shutdown->request();
    });
    const Stopwatch watch;
    (void)errorOf({.script = printing(complete), .transcriptRetryDelay = 25, .shutdown = shutdown});
    EXPECT_LT(watch.seconds(), 20);
    quitting.join();
}

} // namespace Loadwick
