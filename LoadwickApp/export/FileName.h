#pragma once

#include <QString>

namespace Loadwick::FileName {

/// The name of a file to suggest, without its ending: `kind`, and a repository's name behind a
/// dash. Of that name letters, digits, dots and low lines stay, whatever else stands in it becomes
/// a dash, and no more than 60 characters are taken.
[[nodiscard]] QString suggested(const QString &kind, const QString &repositoryName);

} // namespace Loadwick::FileName
