#pragma once

#include <filesystem>
#include <string_view>

/// Replaces a file so that a reader, or a crash, finds the old content or the new one, never a
/// part.
namespace Loadwick::AtomicFile {

/// Writes `bytes` to a temporary file beside `path`, syncs it, renames it over `path` and syncs the
/// folder; mode 0600. A link at `path` stays and its target is replaced. Temporary files that a
/// crashed writer left are removed first, unless a living one holds their lock. False when the new
/// content is not in place; the old file is then as it was.
bool replace(const std::filesystem::path &path, std::string_view bytes);

} // namespace Loadwick::AtomicFile
