#pragma once

#include <string_view>

#include "theme/DesktopWishes.h"

/// Reads what KDE's programs share: the file "kdeglobals" of the user's configuration folder.
namespace Loadwick::KdeGlobals {

/// The wishes in the text of the file: dark by the ground of its windows or else by the name of
/// its colour scheme, contrast by that name, no motion by a factor of 0 for the time that
/// animations take. Lines that are none of these say nothing.
[[nodiscard]] DesktopWishes wishes(std::string_view text);

} // namespace Loadwick::KdeGlobals
