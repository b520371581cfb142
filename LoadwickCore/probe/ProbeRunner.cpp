#include "probe/ProbeRunner.h"

#include <chrono>
#include <utility>

#include "posix/FileSystem.h"
#include "probe/ProbeEnvironment.h"
#include "probe/ProbeError.h"
#include "probe/ProbeOutputParser.h"
#include "probe/SlabParser.h"
#include "probe/TranscriptLocator.h"
#include "probe/TranscriptSearch.h"
#include "process/BoundedCall.h"
#include "process/ChildSupervision.h"
#include "text/PathText.h"
#include "text/UnicodeText.h"
#include "json/JsonReader.h"

namespace Loadwick {

const std::string_view ProbeRunner::probePrompt =
    "Report your own startup context usage for this session.\n"
    "Output ONLY lines of this exact form, one per startup context category:\n"
    "SLAB <category name> TOKENS <integer>\n"
    "Categories are the ones in your own context breakdown, for example: system prompt, system "
    "tools, mcp tools, memory files, custom agents, messages.\n"
    "No prose, no preamble, no totals line, no code fences, and do not use any tool.";

namespace {

struct Total
{
    std::int64_t tokens;
    TotalSource source;
};

// A home folder may lie on a disk that does not answer: nothing can be started from it then.
bool isExecutableWithinLimit(const std::string &path)
{
    constexpr std::chrono::seconds limit(30);
    return callWithin(limit, [path] { return ClaudeCLILocator::isExecutableFile(path); })
        .value_or(false);
}

ProbeError couldNotStart(const std::string &cli, const std::error_code &reason)
{
    return ProbeError::unreadableOutput("Could not start " + repairedUtf8(cli) + ": " +
                                        reason.message());
}

std::string decoded(std::optional<std::string> bytes)
{
    return bytes && isUtf8(*bytes) ? std::move(*bytes) : std::string();
}

// Streams that did not end may lack anything. A session that was asked to stop may still have ended
// with a complete record, and what that says passes through; a partial one says nothing.
ProbeOutput parsed(const Execution &execution)
{
    try {
        return ProbeOutputParser::parse(execution.standardOutput, execution.standardError,
                                        execution.exitCode);
    } catch (const ProbeError &error) {
        const bool isPartial = execution.terminationRequested &&
                               std::holds_alternative<ProbeError::UnreadableOutput>(error.value());
        if (execution.readersTimedOut || isPartial)
            throw ProbeError::timedOut();
        throw;
    }
}

// The command's own usage block accumulates across turns: of a longer session it counts cached
// tokens several times.
Total singleTurnTotal(const std::optional<ProbeUsage> &usage, std::string_view standardOutput,
                      const std::filesystem::path &projectsRoot)
{
    if (!usage)
        throw ProbeError::noTranscript(pathText(projectsRoot));
    const std::optional<std::int64_t> turns = ProbeRunner::reportedTurns(standardOutput);
    if (!turns)
        throw ProbeError::unknownTurnCount();
    if (*turns >= 2)
        throw ProbeError::multiTurnUsageOnly(*turns);
    return {usage->startupTotal(), TotalSource::cliUsage};
}

} // namespace

ProbeRunner::Settings ProbeRunner::userSettings(const Environment &environment,
                                                std::shared_ptr<Shutdown> shutdown)
{
    Settings settings;
    settings.home = homeFolder(environment);
    settings.projectsRoot = TranscriptLocator::defaultProjectsRoot(settings.home, environment);
    settings.environment = environment;
    settings.workingDirectory = currentFolder();
    settings.lookup.isExecutable = isExecutableWithinLimit;
    settings.lookup.loginShellLookup = [shutdown] {
        return ClaudeCLILocator::loginShellPath(std::string(ClaudeCLILocator::loginShell),
                                                ClaudeCLILocator::loginShellTimeoutSeconds,
                                                shutdown);
    };
    settings.fileSystem = std::make_shared<PosixFileSystem>();
    settings.shutdown = std::move(shutdown);
    return settings;
}

ProbeRunner::ProbeRunner(Settings settings) : m_settings(std::move(settings))
{
    if (!m_settings.shutdown)
        m_settings.shutdown = std::make_shared<Shutdown>();
}

ProbeResult ProbeRunner::run(const std::filesystem::path &repository)
{
    const std::string cli =
        ClaudeCLILocator::resolve(m_settings.cliOverride, m_settings.home, m_settings.lookup);
    const auto start = std::chrono::steady_clock::now();
    const Execution execution = execute(launch(cli, repository));
    if (execution.timedOut)
        throw ProbeError::timedOut();
    const ProbeOutput output = parsed(execution);
    std::vector<SelfReportedSlab> slabs = SlabParser::parse(output.result);
    const std::chrono::duration<double> duration = std::chrono::steady_clock::now() - start;

    const std::optional<ProbeUsage> usage = transcriptUsage(output.sessionID);
    const Total total =
        usage ? Total{usage->startupTotal(), TotalSource::transcript}
              : singleTurnTotal(output.usage, execution.standardOutput, m_settings.projectsRoot);
    return {output.sessionID, total.tokens,     total.source,
            std::move(slabs), duration.count(), repairedUtf8(cli)};
}

std::vector<std::string> ProbeRunner::arguments()
{
    return {"-p", std::string(probePrompt), "--output-format", "json", "--model", "sonnet"};
}

Execution ProbeRunner::execute(const Launch &launch)
{
    try {
        ChildSupervision::Outcome outcome = ChildSupervision::run(
            {.command = {launch.cli, launch.arguments, launch.environment, launch.repository},
             .timeoutSeconds = launch.timeoutSeconds,
             .killGraceSeconds = launch.killGraceSeconds,
             .readerGraceSeconds = launch.readerGraceSeconds,
             .captureLimit = launch.captureLimit,
             .shutdown = launch.shutdown});
        return {.exitCode = outcome.ending.status,
                .standardOutput = decoded(std::move(outcome.standardOutput)),
                .standardError = decoded(std::move(outcome.standardError)),
                .timedOut = outcome.terminationRequested && outcome.ending.isBySignal,
                .readersTimedOut = outcome.readersTimedOut,
                .terminationRequested = outcome.terminationRequested};
    } catch (const ChildSupervision::StartFailed &failure) {
        throw couldNotStart(launch.cli, failure.code());
    }
}

std::optional<std::int64_t> ProbeRunner::reportedTurns(std::string_view standardOutput)
{
    const auto record = jsonObjectOfScalars(standardOutput, {"num_turns"});
    return record ? exactInteger(member(*record, "num_turns")) : std::nullopt;
}

ProbeRunner::Launch ProbeRunner::launch(const std::string &cli,
                                        const std::filesystem::path &repository) const
{
    Launch launch;
    launch.cli = cli;
    launch.repository = repository;
    launch.timeoutSeconds = m_settings.timeoutSeconds;
    launch.killGraceSeconds = m_settings.killGraceSeconds;
    launch.readerGraceSeconds = m_settings.readerGraceSeconds;
    launch.environment =
        ProbeEnvironment::childEnvironment(m_settings.environment, m_settings.workingDirectory);
    launch.captureLimit = m_settings.captureLimit;
    launch.shutdown = m_settings.shutdown;
    return launch;
}

// A thread of its own, since a disk may not answer; the search owns all that it touches.
std::optional<ProbeUsage> ProbeRunner::transcriptUsage(const std::string &sessionID) const
{
    const TranscriptSearch search{.sessionID = sessionID,
                                  .projectsRoot = m_settings.projectsRoot,
                                  .fileSystem = m_settings.fileSystem,
                                  .shutdown = m_settings.shutdown,
                                  .attempts = m_settings.transcriptRetries,
                                  .delaySeconds = m_settings.transcriptRetryDelay,
                                  .deadline = deadlineAfter(m_settings.transcriptSearchSeconds)};
    const std::chrono::duration<double> limit(m_settings.transcriptSearchSeconds);
    return callWithin(limit, [search] { return search.run(); }).value_or(std::nullopt);
}

} // namespace Loadwick
