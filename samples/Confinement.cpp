#include "samples/Confinement.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <optional>
#include <string>
#include <system_error>
#include <utility>

namespace Loadwick::Confinement {

namespace {

constexpr std::array<const char *, 8> foldersElsewhere{
    "CLAUDE_CONFIG_DIR", "XDG_CONFIG_HOME", "XDG_DATA_HOME",   "XDG_CACHE_HOME",
    "XDG_STATE_HOME",    "XDG_DATA_DIRS",   "XDG_CONFIG_DIRS", "ZDOTDIR"};

/// The display's key is in the home folder unless this variable names it, so the variable must be
/// set before the home changes.
void keepDisplayKey()
{
    const char *home = std::getenv("HOME");
    if (home == nullptr || std::getenv("XAUTHORITY") != nullptr)
        return;
    const std::filesystem::path key = std::filesystem::path(home) / ".Xauthority";
    std::error_code ignored;
    if (std::filesystem::exists(key, ignored))
        setenv("XAUTHORITY", key.c_str(), 1);
}

} // namespace

void pinEnvironment(const std::filesystem::path &home)
{
    keepDisplayKey();
    for (const char *name : foldersElsewhere)
        unsetenv(name);
    setenv("HOME", home.c_str(), 1);
}

bool contains(const std::filesystem::path &home, const std::filesystem::path &path)
{
    std::error_code failure;
    const std::filesystem::path root = std::filesystem::canonical(home, failure);
    if (failure)
        return false;
    const std::filesystem::path target = std::filesystem::canonical(path, failure);
    if (failure)
        return false;
    return std::mismatch(root.begin(), root.end(), target.begin(), target.end()).first ==
           root.end();
}

ProbeRunner::Settings runnerSettings(const std::filesystem::path &home,
                                     std::shared_ptr<Shutdown> shutdown)
{
    ProbeRunner::Settings settings =
        ProbeRunner::userSettings(currentEnvironment(), std::move(shutdown));
    settings.cliOverride = std::nullopt;
    settings.home = home.string();
    settings.projectsRoot = home / ".claude" / "projects";
    settings.lookup.isExecutable = [home](const std::string &path) {
        return contains(home, path) && ClaudeCLILocator::isExecutableFile(path);
    };
    settings.lookup.loginShellLookup = [] { return std::optional<std::string>(); };
    return settings;
}

} // namespace Loadwick::Confinement
