#pragma once

#include <filesystem>
#include <memory>

#include "probe/ProbeRunner.h"
#include "process/Shutdown.h"

namespace Loadwick {

/// Keeps a program that scans inside one throw-away home, so that it can neither start another
/// `claude` of the machine nor write beside one.
namespace Confinement {

/// Makes `home` this process's home and forgets the variables that name a configuration, data,
/// state or cache folder elsewhere. To be called before any thread is started.
void pinEnvironment(const std::filesystem::path &home);

/// Whether `path`, with its links followed, lies inside `home`.
[[nodiscard]] bool contains(const std::filesystem::path &home, const std::filesystem::path &path);

/// The runner's settings of this process with its search cut down: nothing outside `home` counts as
/// executable, and no login shell is asked.
[[nodiscard]] ProbeRunner::Settings runnerSettings(const std::filesystem::path &home,
                                                   std::shared_ptr<Shutdown> shutdown);

} // namespace Confinement
} // namespace Loadwick
