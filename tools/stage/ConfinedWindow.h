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

/// A fake folder dialog, which chooses the folder that `answer` returns when it opens, even one
/// that no dialog can name because it is not UTF-8.
[[nodiscard]] std::unique_ptr<FolderChooser>
givenFolder(std::function<std::filesystem::path()> answer);

} // namespace Loadwick::ConfinedWindow
