#pragma once

#include <filesystem>
#include <string_view>
#include <system_error>

/// Replaces and removes a file so that a reader, or a crash, finds the old content or the new one,
/// never a part. A link at the path is kept and followed, even when it dangles.
namespace Loadwick::AtomicFile {

/// Writes `bytes` to a temporary file beside `path`, syncs it, renames it over `path` and syncs the
/// folder; mode 0600. First removes the temporary files of crashed writers; a live writer holds a
/// lock on its own. On failure, returns the system's reason and leaves the old file unchanged. A
/// folder at `path` is left alone (`std::errc::is_a_directory`), as is a FIFO, socket or device
/// (`std::errc::not_supported`).
[[nodiscard]] std::error_code replace(const std::filesystem::path &path, std::string_view bytes);

/// Unlinks the file (not a link to it) and the temporary files of crashed writers beside it, so
/// that no copy of the content remains. Never removes a folder, and through a link only a regular
/// file. Best-effort: never fails.
void remove(const std::filesystem::path &path);

} // namespace Loadwick::AtomicFile
