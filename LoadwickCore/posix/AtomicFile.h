#pragma once

#include <filesystem>
#include <string_view>
#include <system_error>

/// Replaces and removes a file so that a reader, or a crash, finds the old content or the new one,
/// never a part. A link at the path stays: what is meant is the file that it leads to, whether that
/// exists yet or not.
namespace Loadwick::AtomicFile {

/// Writes `bytes` to a temporary file beside `path`, syncs it, renames it over `path` and syncs the
/// folder; mode 0600. A folder, FIFO, socket or device at `path` is left alone. Temporary files
/// that a crashed writer left are removed first, unless a living one holds their lock. False when
/// the new content is not in place; the old file is then as it was.
[[nodiscard]] bool replace(const std::filesystem::path &path, std::string_view bytes);

/// The same, and `failure` is the system's reason when it returns false, else empty. What was left
/// alone because it is no file is `std::errc::is_a_directory` or `std::errc::not_supported`.
[[nodiscard]] bool replace(const std::filesystem::path &path, std::string_view bytes,
                           std::error_code &failure);

/// Unlinks the file and what crashed writers left beside it, so that the bytes are gone and not
/// just a name for them. Never removes a folder, nor through a link anything but a regular file.
/// Never fails.
void remove(const std::filesystem::path &path);

} // namespace Loadwick::AtomicFile
