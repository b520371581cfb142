#pragma once

#include <QString>
#include <QStringList>

/// Which drawing belongs to which name.
namespace Loadwick::SymbolCatalog {

/// The drawing of a system image name ("folder.fill") or of one of our own role names
/// ("repository"), as a path into the resources; empty for a name without a drawing.
[[nodiscard]] QString file(const QString &name);

/// All system image names that have a drawing, in alphabetical order.
[[nodiscard]] QStringList systemNames();

/// All role names, in alphabetical order.
[[nodiscard]] QStringList roles();

} // namespace Loadwick::SymbolCatalog
