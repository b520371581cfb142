#pragma once

#include <filesystem>

#include "probe/ProbeRunner.h"
#include "shell/LoadwickWindow.h"

namespace Loadwick {

/// The program's own window over a throw-away home.
namespace ConfinedWindow {

/// Collaborators that stay inside `home`, with a runner that has these settings. The folder dialog
/// is the platform's unless the caller puts another one in its place.
[[nodiscard]] LoadwickWindow::Collaborators collaborators(const std::filesystem::path &home,
                                                          ProbeRunner::Settings settings);

} // namespace ConfinedWindow
} // namespace Loadwick
