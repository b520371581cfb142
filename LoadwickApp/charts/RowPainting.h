#pragma once

#include <QColor>
#include <QPainter>
#include <QRectF>
#include <QString>

/// What the painted rows of bars have in common.
namespace Loadwick::RowPainting {

inline constexpr qreal barHeight = 8;
inline constexpr qreal leastBar = 2; ///< a single token is visible
inline constexpr qreal cornerRadius = 4;

/// The same part of a row of that width, mirrored for right-to-left reading.
[[nodiscard]] QRectF mirroredIn(qreal rowWidth, const QRectF &box);

/// Writes one line, in the middle of the box's height. The side is not mirrored.
void write(QPainter &painter, const QRectF &box, Qt::Alignment side, const QString &words);

/// Fills a bar whose corners are as round as its width allows.
void fillBar(QPainter &painter, const QRectF &bar, const QColor &color);

} // namespace Loadwick::RowPainting
