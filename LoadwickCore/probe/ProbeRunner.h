#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "posix/FileSystem.h"
#include "posix/ProcessContext.h"
#include "probe/ClaudeCLILocator.h"
#include "probe/ProbeRunning.h"
#include "probe/ProbeUsage.h"
#include "process/ChildSupervision.h"
#include "process/Shutdown.h"

namespace Loadwick {

/// The outcome of one child process.
struct Execution
{
    std::int32_t exitCode = 0;    ///< exit status, or the signal's number when one ended it
    std::string standardOutput;   ///< UTF-8; empty when it was not, or exceeded the capture limit
    std::string standardError;    ///< the same
    bool timedOut = false;        ///< the time-out fired and a signal ended the child, or its start
    bool readersTimedOut = false; ///< a stream was still open when its readers had to stop
    bool terminationRequested = false; ///< the time-out fired, however the child then ended

    friend bool operator==(const Execution &, const Execution &) = default;
};

/// Measures a repository with exactly one headless session. Holds settings only: runs are
/// independent of each other, and a failed one leaves nothing behind.
class ProbeRunner final : public ProbeRunning
{
public:
    static constexpr double defaultTimeoutSeconds = 300.0;
    static constexpr double defaultKillGraceSeconds = 5.0;
    static constexpr double defaultReaderGraceSeconds = 5.0;
    static constexpr ChildSupervision::Limits defaultLimits{
        .timeoutSeconds = defaultTimeoutSeconds,
        .killGraceSeconds = defaultKillGraceSeconds,
        .readerGraceSeconds = defaultReaderGraceSeconds,
        .captureLimit = std::size_t{1} << 30};

    /// The session's prompt.
    static const std::string_view probePrompt;

    struct Settings
    {
        std::optional<std::string> cliOverride;
        std::string home;
        std::filesystem::path projectsRoot;
        Environment environment; ///< the program's own; the child inherits part of it
        std::filesystem::path workingDirectory; ///< resolves the environment's relative folders
        ClaudeCLILocator::Lookup lookup;
        std::shared_ptr<const FileSystem> fileSystem;
        std::shared_ptr<Shutdown> shutdown;
        int transcriptRetries = 12;            ///< attempts; fewer than 1 count as 1
        double transcriptRetryDelay = 0.4;     ///< seconds; negative or not finite is fatal
        double transcriptSearchSeconds = 30.0; ///< then the search gives up
        ChildSupervision::Limits limits = defaultLimits;
    };

    /// The settings of the running program: the user's own home, environment, disk and login shell.
    [[nodiscard]] static Settings userSettings(const Environment &environment,
                                               std::shared_ptr<Shutdown> shutdown);

    explicit ProbeRunner(Settings settings);

    [[nodiscard]] ProbeResult run(const std::filesystem::path &repository) override;

    /// The child's arguments after the executable.
    [[nodiscard]] static std::vector<std::string> arguments();

    /// One child process to run.
    struct Launch
    {
        std::string cli;
        std::filesystem::path repository; ///< its working folder
        Environment environment;          ///< the child's own, complete
        std::vector<std::string> arguments = ProbeRunner::arguments();
        ChildSupervision::Limits limits = defaultLimits;
        std::shared_ptr<Shutdown> shutdown;
    };

    /// Starts the child in a session of its own, captures both its streams and returns when it has
    /// ended and both are drained, or when the time-out and its grace periods are over. The start
    /// counts into the time-out; a child that starts later is killed. Blocking.
    /// Throws `unreadableOutput` when the child cannot be started.
    [[nodiscard]] static Execution execute(const Launch &launch);

    /// "num_turns" of the result record, when there is one and it is an exact integer.
    [[nodiscard]] static std::optional<std::int64_t> reportedTurns(std::string_view standardOutput);

    /// The usage of the session's first assistant message. The command may still be writing its
    /// transcript, so the search is retried. Nothing when no attempt yields a usage, or when the
    /// search limit passes or the program's end is requested first. Blocking.
    [[nodiscard]] std::optional<ProbeUsage> transcriptUsage(const std::string &sessionID) const;

private:
    std::shared_ptr<const Settings> m_settings; ///< shared with searches that outlast their limit
};

} // namespace Loadwick
