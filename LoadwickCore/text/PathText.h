#pragma once

#include <filesystem>
#include <string>

namespace Loadwick {

/// A path as text for people and for the history: its bytes, with U+FFFD for each part that is not
/// UTF-8. Never hand it back to the file system.
[[nodiscard]] std::string pathText(const std::filesystem::path &path);

/// `path` without ".", ".." and a trailing slash, except the root's. Links are not resolved, and a
/// relative path stays relative.
[[nodiscard]] std::filesystem::path standardizedPath(const std::filesystem::path &path);

} // namespace Loadwick
