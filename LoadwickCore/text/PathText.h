#pragma once

#include <filesystem>
#include <string>

namespace Loadwick {

/// A path as text for people and for the history: its bytes, with U+FFFD in the place of what is
/// not UTF-8. Never hand it back to the file system.
[[nodiscard]] std::string pathText(const std::filesystem::path &path);

/// `path` made absolute in spelling only: "." and ".." removed, no trailing slash (the root keeps
/// its one), links not resolved. A relative path stays relative.
[[nodiscard]] std::filesystem::path standardizedPath(const std::filesystem::path &path);

} // namespace Loadwick
