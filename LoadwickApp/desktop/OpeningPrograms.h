#pragma once

class QString;

/// The programs that the desktop associates with kinds of files, as the freedesktop.org
/// "Association between MIME types and applications" describes.
namespace Loadwick::OpeningPrograms {

/// Whether an installed program is associated with the kind of file that the name stands for; one
/// without a known kind counts as text. The file itself is not read. Reads the user's and the
/// system's lists: call it off the interface thread.
[[nodiscard]] bool existFor(const QString &file);

} // namespace Loadwick::OpeningPrograms
