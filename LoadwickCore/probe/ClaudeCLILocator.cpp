#include "probe/ClaudeCLILocator.h"

#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "probe/ProbeError.h"
#include "process/ChildSupervision.h"
#include "text/UnicodeText.h"

namespace Loadwick::ClaudeCLILocator {

namespace {

constexpr std::size_t answerLimit = std::size_t{64} * 1024; ///< bytes
constexpr double answerGraceSeconds = 1.0; ///< for the answer, after the shell's end

std::optional<ChildSupervision::Outcome> askShell(const std::string &shell, double timeoutSeconds,
                                                  const std::shared_ptr<Shutdown> &shutdown)
{
    try {
        return ChildSupervision::run({.command = {.executable = shell,
                                                  .arguments = {"-lc", "command -v claude"},
                                                  .environment = currentEnvironment(),
                                                  .workingFolder = std::nullopt},
                                      .limits = {.timeoutSeconds = timeoutSeconds,
                                                 .killGraceSeconds = loginShellKillGraceSeconds,
                                                 .readerGraceSeconds = answerGraceSeconds,
                                                 .captureLimit = answerLimit},
                                      .capture = ChildSupervision::Capture::standardOutputOnly,
                                      .shutdown = shutdown});
    } catch (const ChildSupervision::StartFailed &) {
        return std::nullopt;
    }
}

} // namespace

std::vector<std::string> candidates(const std::optional<std::string> &cliOverride,
                                    const std::string &home)
{
    std::vector<std::string> paths;
    if (cliOverride && !trimmedSpaces(*cliOverride).empty())
        paths.push_back(*cliOverride);
    paths.push_back(home + "/.local/bin/claude");
    paths.emplace_back("/opt/homebrew/bin/claude");
    paths.emplace_back("/usr/local/bin/claude");
    return paths;
}

std::string resolve(const std::optional<std::string> &cliOverride, const std::string &home,
                    const Lookup &lookup)
{
    std::vector<std::string> searched = candidates(cliOverride, home);
    for (const std::string &path : searched)
        if (lookup.isExecutable(path))
            return path;

    if (const std::optional<std::string> answer = lookup.loginShellLookup()) {
        std::string path(trimmed(*answer));
        if (path.starts_with('/') && lookup.isExecutable(path))
            return path;
    }
    for (std::string &path : searched)
        path = repairedUtf8(path);
    searched.emplace_back(loginShellProbeLabel);
    throw ProbeError::cliNotFound(std::move(searched));
}

bool isExecutableFile(const std::string &path)
{
    struct stat status = {};
    return path.find('\0') == std::string::npos && stat(path.c_str(), &status) == 0 &&
           S_ISREG(status.st_mode) && faccessat(AT_FDCWD, path.c_str(), X_OK, AT_EACCESS) == 0;
}

std::optional<std::string> loginShellPath(const std::string &shell, double timeoutSeconds,
                                          const std::shared_ptr<Shutdown> &shutdown)
{
    std::optional<ChildSupervision::Outcome> outcome = askShell(shell, timeoutSeconds, shutdown);
    if (!outcome || outcome->terminationRequested || outcome->ending.isBySignal ||
        outcome->ending.status != 0)
        return std::nullopt;
    if (!outcome->standardOutput || !isUtf8(*outcome->standardOutput))
        return std::nullopt;
    return std::move(outcome->standardOutput);
}

} // namespace Loadwick::ClaudeCLILocator
