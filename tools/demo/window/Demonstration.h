#pragma once

#include <filesystem>

#include "samples/ThrowAwayHome.h"

namespace Loadwick {

/// The two ways of showing the program on a throw-away home. Each takes over the whole process and
/// expects its environment to be pinned to that home.
namespace Demonstration {

/// Opens the window and runs until it is closed.
[[noreturn]] void show(int argc, char **argv, const ThrowAwayHome &home);

/// Performs one scan that succeeds and one that fails, off screen, through the window's own
/// buttons, and leaves a picture of each state in `folder`. Gives the exit status.
[[nodiscard]] int takePictures(int argc, char **argv, const ThrowAwayHome &home,
                               const std::filesystem::path &folder);

} // namespace Demonstration
} // namespace Loadwick
