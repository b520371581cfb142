#include "probe/ProbeRunner.h"

#include <gtest/gtest.h>

#include "probe/ProbeError.h"
#include "samples/TemporaryFolder.h"
#include "support/EnumerationNames.h"
#include "support/ProbeSettings.h"
#include "support/Stopwatch.h"

namespace Loadwick {

namespace {

// A home of its own with a command that is a small script.
class Setting
{
public:
    Setting()
    {
        settings = probeSettingsIn(folder.path());
        settings.environment["ROOT"] = folder.path().string();
        settings.shutdown = std::make_shared<Shutdown>();
        settings.limits.timeoutSeconds = 30;
        settings.limits.killGraceSeconds = 0.2;
        settings.limits.readerGraceSeconds = 0.2;
    }

    void commandRuns(const std::string &script) const
    {
        folder.writeScript(".local/bin/claude", "#!/bin/sh\n" + script);
    }

    void commandPrints(const std::string &record) const
    {
        folder.write("record.json", record);
        commandRuns("cat \"$ROOT/record.json\"\n");
    }

    void sessionLeaves(const std::string &usage) const
    {
        folder.write("projects/some-project/abc.jsonl",
                     R"({"type":"assistant","message":{"usage":)" + usage + "}}\n");
    }

    [[nodiscard]] ProbeResult result() const { return ProbeRunner(settings).run(folder.path()); }

    [[nodiscard]] std::optional<ProbeError> error() const
    {
        try {
            (void)result();
        } catch (const ProbeError &failure) {
            return failure;
        }
        return std::nullopt;
    }

    TemporaryFolder folder;
    ProbeRunner::Settings settings;
};

constexpr const char *usage = R"({"input_tokens":1,"cache_creation_input_tokens":20,)"
                              R"("cache_read_input_tokens":300,"output_tokens":4000})";

std::string record(const std::string &more)
{
    return R"({"session_id":"abc","result":"SLAB tools TOKENS 5\nhm\nSLAB memory TOKENS 1,000")" +
           (more.empty() ? "" : "," + more) + "}\n";
}

std::string usageAndTurns(const std::string &turns)
{
    return record(R"("usage":)" + std::string(usage) + R"(,"num_turns":)" + turns);
}

} // namespace

TEST(ProbeRunnerTest, takesTheTotalFromTheTranscript)
{
    const Setting setting;
    setting.commandPrints(usageAndTurns("3"));
    setting.sessionLeaves(R"({"input_tokens":2,"cache_read_input_tokens":40,"output_tokens":9})");
    const ProbeResult result = setting.result();
    EXPECT_EQ(result.sessionID, "abc");
    EXPECT_EQ(result.authoritativeTotal, 42);
    EXPECT_EQ(result.totalSource, TotalSource::transcript);
    EXPECT_EQ(result.resolvedCLIPath, setting.folder.path() / ".local/bin/claude");
    EXPECT_EQ(result.selfReportedSlabs,
              (std::vector<SelfReportedSlab>{{"tools", 5}, {"memory", 1000}}));
    EXPECT_EQ(result.answerLines.read, 2);
}

TEST(ProbeRunnerTest, takesTheTotalOfASingleTurnFromTheCommand)
{
    const Setting setting;
    setting.commandPrints(usageAndTurns("1"));
    const ProbeResult result = setting.result();
    EXPECT_EQ(result.authoritativeTotal, 321);
    EXPECT_EQ(result.totalSource, TotalSource::cliUsage);
}

TEST(ProbeRunnerTest, acceptsATurnCountBelowOne)
{
    for (const char *const turns : {"0", "-3"}) {
        const Setting setting;
        setting.commandPrints(usageAndTurns(turns));
        EXPECT_EQ(setting.result().totalSource, TotalSource::cliUsage) << turns;
    }
}

TEST(ProbeRunnerTest, rejectsTheUsageOfSeveralTurns)
{
    const Setting setting;
    setting.commandPrints(usageAndTurns("3"));
    EXPECT_EQ(setting.error(), ProbeError::multiTurnUsageOnly(3));
    setting.commandPrints(usageAndTurns("2"));
    EXPECT_EQ(setting.error(), ProbeError::multiTurnUsageOnly(2));
}

TEST(ProbeRunnerTest, rejectsAUsageOfUnknownTurns)
{
    const Setting setting;
    setting.commandPrints(record(R"("usage":)" + std::string(usage)));
    EXPECT_EQ(setting.error(), ProbeError::unknownTurnCount());
    setting.commandPrints(usageAndTurns("1.0"));
    EXPECT_EQ(setting.error(), ProbeError::unknownTurnCount());
}

TEST(ProbeRunnerTest, namesTheProjectsRootWithoutTranscriptAndUsage)
{
    const Setting setting;
    const auto expected = ProbeError::noTranscript(setting.settings.projectsRoot.string());
    setting.commandPrints(record(""));
    EXPECT_EQ(setting.error(), expected);
    setting.commandPrints(record(R"("num_turns":1)"));
    EXPECT_EQ(setting.error(), expected);
}

TEST(ProbeRunnerTest, neverSearchesTheTranscriptOfAFailedSession)
{
    const Setting setting;
    setting.sessionLeaves(usage);
    setting.commandPrints(R"({"session_id":"abc","result":"Credit balance is too low",)"
                          R"("is_error":true})");
    EXPECT_EQ(setting.error(), ProbeError::sessionFailed("Credit balance is too low"));
}

TEST(ProbeRunnerTest, reportsASessionThatIsNotSignedIn)
{
    const Setting setting;
    setting.commandRuns("echo 'Invalid API key' >&2\nexit 1\n");
    EXPECT_EQ(setting.error(), ProbeError::notAuthenticated());
}

TEST(ProbeRunnerTest, showsUnreadableOutput)
{
    const Setting setting;
    setting.commandRuns("echo plain text\nexit 1\n");
    EXPECT_EQ(setting.error(), ProbeError::unreadableOutput("plain text"));
}

TEST(ProbeRunnerTest, reportsAMissingCommand)
{
    const Setting setting;
    const auto error = setting.error();
    ASSERT_TRUE(error && std::holds_alternative<ProbeError::CliNotFound>(error->value()));
    const auto &searched = std::get<ProbeError::CliNotFound>(error->value()).searched;
    EXPECT_EQ(searched.size(), 4U);
    EXPECT_EQ(searched.front(), setting.settings.home + "/.local/bin/claude");
}

TEST(ProbeRunnerTest, looksOnTheUsersDiskForExecutables)
{
    const Setting setting;
    const auto user = ProbeRunner::userSettings(setting.settings.environment, nullptr);
    EXPECT_TRUE(user.lookup.isExecutable(setting.folder.writeScript("claude", "").string()));
    EXPECT_FALSE(user.lookup.isExecutable(setting.folder.write("plain", "").string()));
}

TEST(ProbeRunnerTest, runsTheOverrideWhenThereIsOne)
{
    Setting setting;
    setting.commandPrints(usageAndTurns("1"));
    setting.settings.cliOverride =
        setting.folder.writeScript("mine", "#!/bin/sh\ncat \"$ROOT/record.json\"\n").string();
    EXPECT_EQ(setting.result().resolvedCLIPath, *setting.settings.cliOverride);
}

TEST(ProbeRunnerTest, namesTheExecutableThatCouldNotBeStarted)
{
    const Setting setting;
    const auto cli = setting.folder
                         .writeScript(".local/bin/claude", "\x7F"
                                                           "ELF")
                         .string();
    EXPECT_EQ(setting.error(),
              ProbeError::unreadableOutput("Could not start " + cli + ": Exec format error"));
}

TEST(ProbeRunnerTest, runsTheCommandWithItsArgumentsInTheRepository)
{
    const Setting setting;
    setting.commandRuns("pwd >\"$ROOT/log\"\nprintf '<%s>' \"$@\" >>\"$ROOT/log\"\n"
                        "cat \"$ROOT/record.json\"\n");
    setting.folder.write("record.json", usageAndTurns("1"));
    (void)setting.result();
    EXPECT_EQ(contentOf(setting.folder.path() / "log"),
              setting.folder.path().string() + "\n<-p><" + std::string(ProbeRunner::probePrompt) +
                  "><--output-format><json><--model><sonnet>");
}

TEST(ProbeRunnerTest, hidesKeysFromTheCommand)
{
    Setting setting;
    setting.settings.environment["ANTHROPIC_API_KEY"] = "secret";
    setting.settings.environment["CLAUDECODE"] = "1";
    setting.settings.environment["CLAUDE_CODE_ENTRYPOINT"] = "cli";
    setting.settings.environment["CLAUDE_CODE_OAUTH_TOKEN"] = "kept";
    setting.settings.environment["CLAUDE_CONFIG_DIR"] = "settings";
    setting.commandRuns("env >\"$ROOT/log\"\ncat \"$ROOT/record.json\"\n");
    setting.folder.write("record.json", usageAndTurns("1"));
    (void)setting.result();
    const std::string seen = "\n" + contentOf(setting.folder.path() / "log");
    EXPECT_EQ(seen.find("secret"), std::string::npos);
    EXPECT_EQ(seen.find("\nCLAUDECODE="), std::string::npos);
    EXPECT_EQ(seen.find("CLAUDE_CODE_ENTRYPOINT"), std::string::npos);
    EXPECT_NE(seen.find("\nCLAUDE_CODE_OAUTH_TOKEN=kept\n"), std::string::npos);
    EXPECT_NE(seen.find("\nCLAUDE_CONFIG_DIR=" + setting.settings.home + "/settings\n"),
              std::string::npos);
}

TEST(ProbeRunnerTest, hasAFixedPrompt)
{
    EXPECT_EQ(ProbeRunner::probePrompt,
              "Report your own startup context usage for this session.\nOutput ONLY lines of this "
              "exact form, one per startup context category:\nSLAB <category name> TOKENS "
              "<integer>\nCategories are the ones in your own context breakdown, for example: "
              "system prompt, system tools, mcp tools, memory files, custom agents, messages.\nNo "
              "prose, no preamble, no totals line, no code fences, and do not use any tool.");
}

TEST(ProbeRunnerTest, usesATranscriptThatIsWrittenLate)
{
    Setting setting;
    setting.settings.transcriptRetries = 200;
    setting.settings.limits.readerGraceSeconds = 20;
    setting.commandRuns("mkdir -p \"$ROOT/projects/p\"\n"
                        "(sleep 0.2; cp \"$ROOT/late\" \"$ROOT/projects/p/abc.jsonl\") "
                        ">/dev/null 2>&1 &\ncat \"$ROOT/record.json\"\n");
    setting.folder.write("record.json", record(""));
    setting.folder.write("late", R"({"type":"assistant","message":{"usage":{"input_tokens":6}}})");
    const ProbeResult result = setting.result();
    EXPECT_EQ(result.authoritativeTotal, 6);
    EXPECT_EQ(result.totalSource, TotalSource::transcript);
}

TEST(ProbeRunnerTest, leavesTheTranscriptSearchOutOfTheDuration)
{
    Setting setting;
    setting.settings.transcriptRetryDelay = 0.5;
    setting.commandRuns("sleep 0.05\ncat \"$ROOT/record.json\"\n");
    setting.folder.write("record.json", usageAndTurns("1"));
    const Stopwatch watch;
    const ProbeResult result = setting.result();
    EXPECT_GE(result.duration, 0.05);
    EXPECT_LE(result.duration, watch.seconds() - 0.5);
}

TEST(ProbeRunnerTest, requiresAnExactIntegerOfTurns)
{
    EXPECT_EQ(ProbeRunner::reportedTurns(" \n{\"num_turns\": 7}\n"), 7);
    EXPECT_EQ(ProbeRunner::reportedTurns(R"({"num_turns":-1})"), -1);
    EXPECT_EQ(ProbeRunner::reportedTurns(R"({"num_turns":null})"), std::nullopt);
    EXPECT_EQ(ProbeRunner::reportedTurns(R"({"num_turns":"7"})"), std::nullopt);
    EXPECT_EQ(ProbeRunner::reportedTurns(R"({"num_turns":true})"), std::nullopt);
    EXPECT_EQ(ProbeRunner::reportedTurns(R"({"num_turns":1.5})"), std::nullopt);
    EXPECT_EQ(ProbeRunner::reportedTurns(R"({"turns":1})"), std::nullopt);
    EXPECT_EQ(ProbeRunner::reportedTurns(R"([{"num_turns":1}])"), std::nullopt);
    EXPECT_EQ(ProbeRunner::reportedTurns(""), std::nullopt);
}

TEST(ProbeRunnerTest, worksWithoutAShutdown)
{
    Setting setting;
    setting.settings.shutdown = nullptr;
    setting.commandRuns("exit 1\n");
    EXPECT_THROW((void)ProbeRunner(setting.settings).run(setting.folder.path()), ProbeError);
    setting.settings.transcriptRetries = 2; // between attempts it waits for the program's end
    setting.settings.transcriptRetryDelay = 0;
    EXPECT_FALSE(ProbeRunner(setting.settings).transcriptUsage("nobody"));
}

TEST(ProbeRunnerTest, namesTheSourcesOfATotal)
{
    expectNames<TotalSource>({"transcript", "cliUsage"});
    EXPECT_EQ(TotalSource(TotalSource::transcript).label(),
              "session transcript: first assistant message usage");
    EXPECT_EQ(TotalSource(TotalSource::cliUsage).label(),
              "CLI result usage block (no transcript found)");
}

} // namespace Loadwick
