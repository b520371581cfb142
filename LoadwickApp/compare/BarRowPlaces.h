#pragma once

#include <QRectF>
#include <QSizeF>

namespace Loadwick {

/// Where the parts of a bar chart's row stand in it; a part that a row does not have is empty.
struct BarRowPlaces
{
    QRectF name;
    QRectF value;
    QRectF track; ///< as long as a bar can be
    QRectF bar;

    /// Name and figure over the bar. The figure takes its `valueWidth`, the name what is left.
    [[nodiscard]] static BarRowPlaces stacked(const QSizeF &row, qreal lineHeight, qreal valueWidth,
                                              double length);

    /// Name, bar and figure on one line, in columns. `length` is how much of the track the bar
    /// fills, 0 to 1.
    [[nodiscard]] static BarRowPlaces inLine(const QSizeF &row, qreal nameWidth, qreal valueWidth,
                                             double length);

    /// Nothing but a name, low over the rows that it stands for.
    [[nodiscard]] static BarRowPlaces heading(const QSizeF &row, qreal lineHeight);

    /// The same row for readers who begin at the right.
    [[nodiscard]] BarRowPlaces mirrored(qreal rowWidth) const;
};

} // namespace Loadwick
