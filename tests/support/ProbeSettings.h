#pragma once

#include <filesystem>
#include <memory>
#include <optional>

#include "posix/FileSystem.h"
#include "probe/ProbeRunner.h"

namespace Loadwick {

/// The settings of a probe in a home of its own; nothing else on the machine is visible to it.
[[nodiscard]] inline ProbeRunner::Settings probeSettingsIn(const std::filesystem::path &home)
{
    ProbeRunner::Settings settings;
    settings.home = home.string();
    settings.projectsRoot = home / "projects";
    settings.environment = {{"PATH", "/usr/bin:/bin"}};
    settings.workingDirectory = home;
    settings.lookup = {ClaudeCLILocator::isExecutableFile, [] { return std::nullopt; }};
    settings.fileSystem = std::make_shared<PosixFileSystem>();
    settings.transcriptRetries = 2;
    settings.transcriptRetryDelay = 0.01;
    return settings;
}

} // namespace Loadwick
