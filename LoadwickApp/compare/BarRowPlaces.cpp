#include "compare/BarRowPlaces.h"

#include <algorithm>

namespace Loadwick {
namespace {

constexpr qreal barHeight = 8;
constexpr qreal barMargin = 4; // below a bar, to the next row
constexpr qreal lineGap = 2;   // between words and what is below them
constexpr qreal nameGap = 8;
constexpr qreal columnGap = 12;
constexpr qreal leastBar = 2; // the smallest count can be seen, none at all cannot

QRectF barOn(const QRectF &track, double length)
{
    QRectF bar = track;
    bar.setWidth(length > 0 ? std::min(track.width(), std::max(leastBar, length * track.width()))
                            : 0);
    return bar;
}

QRectF mirroredIn(qreal rowWidth, const QRectF &place)
{
    return {rowWidth - place.right(), place.top(), place.width(), place.height()};
}

} // namespace

BarRowPlaces BarRowPlaces::stacked(const QSizeF &row, qreal lineHeight, qreal valueWidth,
                                   double length)
{
    const QRectF track(0, row.height() - barMargin - barHeight, row.width(), barHeight);
    const qreal top = track.top() - lineGap - lineHeight;
    const qreal nameWidth = std::max(0.0, row.width() - valueWidth - nameGap);
    return {.name = {0, top, nameWidth, lineHeight},
            .value = {row.width() - valueWidth, top, valueWidth, lineHeight},
            .track = track,
            .bar = barOn(track, length)};
}

BarRowPlaces BarRowPlaces::inLine(const QSizeF &row, qreal nameWidth, qreal valueWidth,
                                  double length)
{
    const QRectF value(row.width() - valueWidth, 0, valueWidth, row.height());
    const qreal start = nameWidth + columnGap;
    const QRectF track(start, (row.height() - barHeight) / 2,
                       std::max(0.0, value.left() - columnGap - start), barHeight);
    return {.name = {0, 0, nameWidth, row.height()},
            .value = value,
            .track = track,
            .bar = barOn(track, length)};
}

BarRowPlaces BarRowPlaces::heading(const QSizeF &row, qreal lineHeight)
{
    return {.name = {0, row.height() - lineGap - lineHeight, row.width(), lineHeight},
            .value = {},
            .track = {},
            .bar = {}};
}

BarRowPlaces BarRowPlaces::mirrored(qreal rowWidth) const
{
    return {.name = mirroredIn(rowWidth, name),
            .value = mirroredIn(rowWidth, value),
            .track = mirroredIn(rowWidth, track),
            .bar = mirroredIn(rowWidth, bar)};
}

} // namespace Loadwick
