#pragma once

#include <filesystem>
#include <optional>

class QString;
class QUrl;

namespace Loadwick {

/// The local path that a URL names, byte for byte: a percent-encoded byte that is not UTF-8 stays
/// that byte. Nothing when the URL names no file of this machine, or holds a NUL.
[[nodiscard]] std::optional<std::filesystem::path> folderPath(const QUrl &url);

/// The address of a local path, byte for byte.
[[nodiscard]] QUrl pathUrl(const std::filesystem::path &path);

/// A file of that name in a folder, whatever letters the name has.
[[nodiscard]] QUrl fileUrl(const QUrl &folder, const QString &name);

/// The file or folder that somebody means who types that while a folder is shown: a path from the
/// root, the home folder ("~") or one from it ("~/…"), the address of a local file ("file:///…"),
/// or a name in the folder, which may have folders below it in front.
[[nodiscard]] QUrl typedFileUrl(const QUrl &folder, const QString &text);

/// Whether a folder is there now. Asks its disk, which may take any time.
[[nodiscard]] bool isFolder(const std::filesystem::path &path);

} // namespace Loadwick
