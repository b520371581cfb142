#pragma once

#include <filesystem>
#include <memory>

#include "probe/ProbeRunner.h"
#include "process/Shutdown.h"

namespace Loadwick {

/// Confines a program that scans to one throw-away home: it can neither start the user's own
/// `claude` nor write to the user's files.
namespace Confinement {

/// Makes `home` this process's home and forgets the variables that name a configuration, data,
/// state or cache folder elsewhere. Call it before any thread starts.
void pinEnvironment(const std::filesystem::path &home);

/// Whether `path` is inside `home` once its links are followed.
[[nodiscard]] bool contains(const std::filesystem::path &home, const std::filesystem::path &path);

/// The runner's settings of this process with a restricted search: nothing outside `home` counts as
/// executable, and no login shell is started.
[[nodiscard]] ProbeRunner::Settings runnerSettings(const std::filesystem::path &home,
                                                   std::shared_ptr<Shutdown> shutdown);

} // namespace Confinement
} // namespace Loadwick
