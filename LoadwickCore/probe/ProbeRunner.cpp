#include "probe/ProbeRunner.h"

#include <chrono>
#include <cmath>
#include <utility>

#include "posix/FileSystem.h"
#include "probe/ProbeEnvironment.h"
#include "probe/ProbeError.h"
#include "probe/ProbeOutputParser.h"
#include "probe/SlabParser.h"
#include "probe/TranscriptLocator.h"
#include "probe/TranscriptReader.h"
#include "process/BoundedCall.h"
#include "process/Deadline.h"
#include "text/Fatal.h"
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

// A home folder may be on a disk that does not answer; nothing can be started from it then.
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

// Streams that did not end may be cut anywhere. A session that was asked to stop may still have
// printed a complete record, which then counts; anything else means a time-out. Its exit status
// only answers our request, so it must not turn partial output into a failed sign-in.
ProbeOutput parsed(const Execution &execution)
{
    try {
        return ProbeOutputParser::parse(execution.standardOutput, execution.standardError,
                                        execution.terminationRequested ? 0 : execution.exitCode);
    } catch (const ProbeError &error) {
        const bool isPartial = execution.terminationRequested &&
                               std::holds_alternative<ProbeError::UnreadableOutput>(error.value());
        if (execution.readersTimedOut || isPartial)
            throw ProbeError::timedOut();
        throw;
    }
}

struct Record
{
    ProbeOutput output;
    std::optional<std::int64_t> turns;
};

// Both are read at once: the streams, as large as their slabs, are gone before those are made.
Record recordOf(const Execution &execution)
{
    if (execution.timedOut)
        throw ProbeError::timedOut();
    return {.output = parsed(execution),
            .turns = ProbeRunner::reportedTurns(execution.standardOutput)};
}

// The command's own usage block accumulates across turns: in a longer session it counts cached
// tokens several times.
Total singleTurnTotal(const std::optional<ProbeUsage> &usage, std::optional<std::int64_t> turns,
                      const std::filesystem::path &projectsRoot)
{
    if (!usage)
        throw ProbeError::noTranscript(pathText(projectsRoot));
    if (!turns)
        throw ProbeError::unknownTurnCount();
    if (*turns >= 2)
        throw ProbeError::multiTurnUsageOnly(*turns);
    return {usage->startupTotal(), TotalSource::cliUsage};
}

std::chrono::duration<double> retryDelay(const ProbeRunner::Settings &settings)
{
    const double seconds = settings.transcriptRetryDelay;
    if (!std::isfinite(seconds) || seconds < 0)
        fatalError("the delay between transcript attempts is no duration");
    return std::chrono::duration<double>(seconds);
}

std::optional<ProbeUsage> attempt(const ProbeRunner::Settings &settings,
                                  const std::string &sessionID, Deadline deadline)
{
    const auto path =
        TranscriptLocator::find(sessionID, settings.projectsRoot, *settings.fileSystem, deadline);
    return path ? TranscriptReader::firstAssistantUsageAtPath(*path, deadline) : std::nullopt;
}

std::optional<ProbeUsage> search(const ProbeRunner::Settings &settings,
                                 const std::string &sessionID, Deadline deadline)
{
    std::optional<ProbeUsage> usage = attempt(settings, sessionID, deadline);
    for (int made = 1; !usage && made < settings.transcriptRetries; ++made) {
        if (settings.shutdown->waitFor(retryDelay(settings)) ||
            std::chrono::steady_clock::now() >= deadline)
            return std::nullopt;
        usage = attempt(settings, sessionID, deadline);
    }
    return usage;
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

ProbeRunner::ProbeRunner(Settings settings)
{
    if (!settings.shutdown)
        settings.shutdown = std::make_shared<Shutdown>();
    m_settings = std::make_shared<const Settings>(std::move(settings));
}

ProbeResult ProbeRunner::run(const std::filesystem::path &repository)
{
    const std::string cli =
        ClaudeCLILocator::resolve(m_settings->cliOverride, m_settings->home, m_settings->lookup);
    const auto start = std::chrono::steady_clock::now();
    const auto [output, turns] =
        recordOf(execute({.cli = cli,
                          .repository = repository,
                          .environment = ProbeEnvironment::childEnvironment(
                              m_settings->environment, m_settings->workingDirectory),
                          .limits = m_settings->limits,
                          .shutdown = m_settings->shutdown}));
    SlabParser::Answer answer = SlabParser::read(output.result);
    const std::chrono::duration<double> duration = std::chrono::steady_clock::now() - start;

    const std::optional<ProbeUsage> usage = transcriptUsage(output.sessionID);
    const Total total = usage ? Total{usage->startupTotal(), TotalSource::transcript}
                              : singleTurnTotal(output.usage, turns, m_settings->projectsRoot);
    return {.sessionID = output.sessionID,
            .authoritativeTotal = total.tokens,
            .totalSource = total.source,
            .selfReportedSlabs = std::move(answer.slabs),
            .duration = duration.count(),
            .resolvedCLIPath = repairedUtf8(cli),
            .answerLines = answer.lines};
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
             .limits = launch.limits,
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

// On a thread of its own, since a disk may not answer: the search shares ownership of its inputs.
std::optional<ProbeUsage> ProbeRunner::transcriptUsage(const std::string &sessionID) const
{
    const double seconds = m_settings->transcriptSearchSeconds;
    return callWithin(std::chrono::duration<double>(seconds),
                      [settings = m_settings, sessionID, deadline = deadlineAfter(seconds)] {
                          return search(*settings, sessionID, deadline);
                      })
        .value_or(std::nullopt);
}

} // namespace Loadwick
