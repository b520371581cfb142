#pragma once

#include <functional>

#include <QImage>
#include <QString>

namespace Loadwick {

/// Drawings as they were last made, for all items that show one of them: lists show the same few
/// many times, and to read and draw one anew costs more than the rest of its row. For any thread.
namespace SymbolPictures {

/// The picture of that key, made by `make` where there is none yet. Of many the one that was asked
/// for longest ago is forgotten.
[[nodiscard]] QImage find(const QString &key, const std::function<QImage()> &make);

} // namespace SymbolPictures
} // namespace Loadwick
