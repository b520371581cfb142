#include "samples/StandIn.h"

#include <array>
#include <chrono>
#include <csignal>
#include <optional>
#include <set>
#include <string>
#include <thread>
#include <variant>

#include <gtest/gtest.h>

#include "probe/ProbeError.h"
#include "probe/ProbeRunner.h"
#include "samples/Confinement.h"
#include "samples/TemporaryFolder.h"

namespace Loadwick {

namespace {

class StandInTest : public testing::Test
{
protected:
    StandInTest()
    {
        Confinement::pinEnvironment(home.path());
        standIn.install();
        std::filesystem::create_directory(repository);
    }

    ProbeRunner::Settings settings() const
    {
        ProbeRunner::Settings settings = Confinement::runnerSettings(home.path(), shutdown);
        settings.transcriptRetries = 1;
        settings.limits.killGraceSeconds = 0.2;
        settings.limits.readerGraceSeconds = 0.5;
        return settings;
    }

    ProbeResult run() const { return ProbeRunner(settings()).run(repository); }

    std::optional<ProbeError> failure(const ProbeRunner::Settings &settings) const
    {
        try {
            static_cast<void>(ProbeRunner(settings).run(repository));
        } catch (const ProbeError &error) {
            return error;
        }
        return std::nullopt;
    }

    Execution execute(const std::vector<std::string> &arguments) const
    {
        return ProbeRunner::execute({.cli = standIn.executable().string(),
                                     .repository = repository,
                                     .environment = currentEnvironment(),
                                     .arguments = arguments,
                                     .shutdown = shutdown});
    }

    TemporaryFolder home;
    std::filesystem::path repository = home.path() / "repository";
    StandIn standIn{home.path()};
    std::shared_ptr<Shutdown> shutdown = std::make_shared<Shutdown>();
};

} // namespace

TEST_F(StandInTest, isMeasuredByItsTranscript)
{
    standIn.play({.outcome = "transcript"});
    const ProbeResult result = run();
    EXPECT_EQ(result.totalSource, TotalSource::transcript);
    EXPECT_EQ(result.authoritativeTotal, 3 + 24'369 + 17'946);
    EXPECT_EQ(result.selfReportedSlabs.size(), 6u);
    EXPECT_EQ(result.resolvedCLIPath, standIn.executable().string());
}

TEST_F(StandInTest, isMeasuredByItsUsageBlockWithoutATranscript)
{
    standIn.play({.outcome = "usage"});
    const ProbeResult result = run();
    EXPECT_EQ(result.totalSource, TotalSource::cliUsage);
    EXPECT_EQ(result.authoritativeTotal, 42'318);
}

TEST_F(StandInTest, usesANewSessionIdentifierEachTime)
{
    standIn.play({.outcome = "usage"});
    EXPECT_NE(run().sessionID, run().sessionID);
    EXPECT_EQ(standIn.runs().size(), 2u);
}

TEST_F(StandInTest, putsTheFirstAssistantLineBeyondTheFirstReadOfATranscript)
{
    standIn.play({.outcome = "transcript"});
    static_cast<void>(run());
    std::string transcript;
    for (const auto &entry :
         std::filesystem::recursive_directory_iterator(home.path() / ".claude/projects"))
        if (entry.path().extension() == ".jsonl")
            transcript = contentOf(entry.path());
    const std::size_t first = transcript.find("\"role\":\"assistant\"");
    ASSERT_NE(first, std::string::npos);
    EXPECT_GT(first, 76u * 1024);
    EXPECT_LT(first, 144u * 1024);
    EXPECT_GT(transcript.find("\"type\":\"assistant\""), first);
}

TEST_F(StandInTest, playsEveryFailureOfASession)
{
    const std::string root = (home.path() / ".claude/projects").string();
    const std::vector<std::pair<StandIn::Scenario, ProbeError>> cases{
        {{.outcome = "many-turns"}, ProbeError::multiTurnUsageOnly(3)},
        {{.outcome = "unknown-turns"}, ProbeError::unknownTurnCount()},
        {{.outcome = "nothing"}, ProbeError::noTranscript(root)},
        {{.outcome = "failed", .message = "Credit balance is too low"},
         ProbeError::sessionFailed("Credit balance is too low")},
        {{.outcome = "signed-out"}, ProbeError::notAuthenticated()},
        {{.outcome = "plain-text", .message = "The configuration file is broken"},
         ProbeError::unreadableOutput("The configuration file is broken")},
    };
    for (const auto &[scenario, error] : cases) {
        standIn.play(scenario);
        EXPECT_EQ(failure(settings()), error) << scenario.outcome;
    }
}

TEST_F(StandInTest, measuresOnlyAllowedFolders)
{
    const TemporaryFolder elsewhere;
    standIn.play({.outcome = "transcript", .onlyBelow = home.path()});
    EXPECT_EQ(run().authoritativeTotal, 42'318);

    repository = elsewhere.path();
    const std::optional<ProbeError> error = failure(settings());
    ASSERT_TRUE(error.has_value());
    EXPECT_NE(error->detail().find("This is the demonstration"), std::string::npos);
}

TEST_F(StandInTest, hangsUntilTheTimeOut)
{
    for (const char *outcome : {"hang", "stubborn"}) {
        standIn.play({.outcome = outcome});
        ProbeRunner::Settings impatient = settings();
        impatient.limits.timeoutSeconds = 0.3;
        EXPECT_EQ(failure(impatient), ProbeError::timedOut()) << outcome;
        EXPECT_NE(kill(standIn.runs().back(), 0), 0) << outcome;
    }
}

TEST_F(StandInTest, runsWhileHeld)
{
    standIn.play({.outcome = "usage"});
    standIn.hold();
    ProbeRunner::Settings impatient = settings();
    impatient.limits.timeoutSeconds = 0.3;
    EXPECT_EQ(failure(impatient), ProbeError::timedOut());
    standIn.release();
    EXPECT_EQ(failure(settings()), std::nullopt);
}

TEST_F(StandInTest, rejectsOtherArguments)
{
    standIn.play({.outcome = "usage"});
    EXPECT_EQ(execute({"--version"}).exitCode, 64);
    EXPECT_EQ(execute({"-p", "Hello", "--output-format", "json", "--model", "sonnet"}).exitCode,
              64);
    std::vector<std::string> another = ProbeRunner::arguments();
    another.back() = "opus";
    EXPECT_EQ(execute(another).exitCode, 64);
    EXPECT_EQ(execute(ProbeRunner::arguments()).exitCode, 0);
}

TEST_F(StandInTest, rejectsAnyOtherHome)
{
    const Execution withoutScenario = execute(ProbeRunner::arguments());
    EXPECT_EQ(withoutScenario.exitCode, 64);
    EXPECT_EQ(withoutScenario.standardError, "stand-in for claude: not in a throw-away home\n");

    standIn.play({.outcome = "usage"});
    const TemporaryFolder elsewhere;
    setenv("HOME", elsewhere.path().c_str(), 1);
    EXPECT_EQ(execute(ProbeRunner::arguments()).exitCode, 64);
    EXPECT_TRUE(std::filesystem::is_empty(elsewhere.path()));
    EXPECT_TRUE(standIn.runs().empty());
}

TEST_F(StandInTest, identifiesItselfInItsFirstLines)
{
    const std::string text = contentOf(standIn.executable());
    EXPECT_LT(text.find("This is NOT Claude Code. It is a stand-in"), 40u);
}

} // namespace Loadwick
