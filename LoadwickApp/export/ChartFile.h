#pragma once

#include <functional>

#include <QByteArray>
#include <QColor>
#include <QQuickPaintedItem>

/// Charts as files.
namespace Loadwick::ChartFile {

/// Makes the bytes of a file; may be called on any thread.
using Bytes = std::function<QByteArray()>;

/// The chart as it is now, in twice its size, on a ground of one colour.
[[nodiscard]] Bytes png(QQuickPaintedItem &chart, const QColor &ground);

/// The same as a drawing of lines and letters.
[[nodiscard]] Bytes svg(QQuickPaintedItem &chart, const QColor &ground);

} // namespace Loadwick::ChartFile
