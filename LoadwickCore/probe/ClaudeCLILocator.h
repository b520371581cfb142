#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "process/Shutdown.h"

/// Finds the `claude` executable.
namespace Loadwick::ClaudeCLILocator {

inline constexpr std::string_view loginShellProbeLabel = "zsh -lc 'command -v claude'";
inline constexpr double loginShellTimeoutSeconds = 5.0;
inline constexpr double loginShellKillGraceSeconds = 1.0;
inline constexpr std::string_view loginShell = "/bin/zsh";

/// The paths tried, in order: the override unless it is blank (spaces and tabs), then the fixed
/// paths, the first of them under `home`.
[[nodiscard]] std::vector<std::string> candidates(const std::optional<std::string> &cliOverride,
                                                  const std::string &home);

/// The outside world as the search sees it.
struct Lookup
{
    std::function<bool(const std::string &path)> isExecutable;
    std::function<std::optional<std::string>()> loginShellLookup;
};

/// The first executable candidate, else the login shell's answer if that is an absolute path and
/// executable: the shell answers with a bare word for a function, which must not be looked up in
/// this process's folder. Throws `cliNotFound` with everything tried, as text,
/// `loginShellProbeLabel` last.
[[nodiscard]] std::string resolve(const std::optional<std::string> &cliOverride,
                                  const std::string &home, const Lookup &lookup);

/// Whether `path` is a regular file (links followed) that this user may execute.
[[nodiscard]] bool isExecutableFile(const std::string &path);

/// The answer of the login shell `shell` to `command -v claude`: its standard output, untrimmed.
/// Nothing when it cannot start, fails, runs past `timeoutSeconds` (then it is stopped), or answers
/// with more than 64 KiB or with bytes that are not UTF-8. Blocking.
[[nodiscard]] std::optional<std::string> loginShellPath(const std::string &shell,
                                                        double timeoutSeconds,
                                                        const std::shared_ptr<Shutdown> &shutdown);

} // namespace Loadwick::ClaudeCLILocator
