#pragma once

#include <functional>
#include <memory>

#include "process/Shutdown.h"
#include "shell/LoadwickWindow.h"

/// The application from start to end.
namespace Loadwick::LoadwickApp {

using MakeCollaborators =
    std::function<LoadwickWindow::Collaborators(std::shared_ptr<Shutdown> shutdown)>;

/// Opens the window, runs until it is closed or a signal comes, and ends the program. The
/// collaborators that `make` returns register the child processes that they start with `shutdown`.
[[noreturn]] void run(int argc, char **argv, const MakeCollaborators &make);

} // namespace Loadwick::LoadwickApp
