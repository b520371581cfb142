#pragma once

#include <filesystem>
#include <optional>

class QString;
class QUrl;

namespace Loadwick {

/// The local path that a URL names, byte for byte: a percent-encoded byte that is not UTF-8 stays
/// that byte. Nothing when the URL names no file of this machine, or holds a NUL.
[[nodiscard]] std::optional<std::filesystem::path> folderPath(const QUrl &url);

/// Whether a folder is there now. Asks its disk, which may take any time.
[[nodiscard]] bool isFolder(const std::filesystem::path &path);

} // namespace Loadwick
