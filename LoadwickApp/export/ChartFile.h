#pragma once

#include <functional>

#include <QByteArray>
#include <QQuickPaintedItem>

#include "export/PictureFrame.h"

/// Charts as files.
namespace Loadwick::ChartFile {

/// Makes the bytes of a file; may be called on any thread.
using Bytes = std::function<QByteArray()>;

/// The chart as it is now, in its frame, in twice its size.
[[nodiscard]] Bytes png(QQuickPaintedItem &chart, const PictureFrame &frame);

/// The same as a drawing of lines and letters.
[[nodiscard]] Bytes svg(QQuickPaintedItem &chart, const PictureFrame &frame);

} // namespace Loadwick::ChartFile
