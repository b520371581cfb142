#pragma once

#include <filesystem>
#include <optional>

class QString;
class QUrl;

namespace Loadwick {

/// The local path that a URL names, byte for byte: percent-encoded bytes need not be UTF-8. Nothing
/// if the URL names no file on this machine or contains a NUL.
[[nodiscard]] std::optional<std::filesystem::path> folderPath(const QUrl &url);

/// Whether a folder exists now. Reads its disk, which may take any length of time.
[[nodiscard]] bool isFolder(const std::filesystem::path &path);

} // namespace Loadwick
