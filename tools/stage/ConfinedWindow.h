#pragma once

#include <filesystem>
#include <functional>
#include <memory>

#include "probe/ProbeRunner.h"
#include "shell/LoadwickWindow.h"

/// The program's own window over a throw-away home.
namespace Loadwick::ConfinedWindow {

/// Collaborators that stay inside `home`, with a runner of these settings. The environment must be
/// pinned to that home. The folder dialog is the platform's.
[[nodiscard]] LoadwickWindow::Collaborators collaborators(const std::filesystem::path &home,
                                                          ProbeRunner::Settings settings);

/// A folder dialog's twin, which answers by itself with the folder that `answer` returns at that
/// moment. It can name folders that a dialog cannot, such as those whose names are not text.
[[nodiscard]] std::unique_ptr<FolderChooser>
givenFolder(std::function<std::filesystem::path()> answer);

} // namespace Loadwick::ConfinedWindow
