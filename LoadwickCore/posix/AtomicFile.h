#pragma once

#include <filesystem>
#include <string_view>
#include <system_error>

/// Replaces and removes a file so that a reader, or a crash, finds the old content or the new one,
/// never a part. A link at the path stays: the file it leads to is meant, whether that exists yet
/// or not.
namespace Loadwick::AtomicFile {

/// Writes `bytes` to a temporary file beside `path`, syncs it, renames it over `path` and syncs the
/// folder; mode 0600. Removes first the temporary files that crashed writers left; a living writer
/// holds a lock on its own. Returns the system's reason when the new content is not there, and the
/// old file is then as it was. A folder at `path` is left alone (`std::errc::is_a_directory`), as
/// is a FIFO, socket or device (`std::errc::not_supported`).
[[nodiscard]] std::error_code replace(const std::filesystem::path &path, std::string_view bytes);

/// Unlinks the file and what crashed writers left beside it, so that the bytes are gone and not
/// just a name for them. Never removes a folder, nor anything but a regular file through a link.
/// Never fails.
void remove(const std::filesystem::path &path);

} // namespace Loadwick::AtomicFile
