#include "charts/RowPainting.h"

#include <algorithm>

namespace Loadwick::RowPainting {

QRectF mirroredIn(qreal rowWidth, const QRectF &box)
{
    return {rowWidth - box.right(), box.top(), box.width(), box.height()};
}

void write(QPainter &painter, const QRectF &box, Qt::Alignment side, const QString &words)
{
    painter.drawText(
        box, static_cast<int>(side | Qt::AlignAbsolute | Qt::AlignVCenter) | Qt::TextSingleLine,
        words);
}

void fillBar(QPainter &painter, const QRectF &bar, const QColor &color)
{
    const qreal radius = std::min(cornerRadius, bar.width() / 2);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawRoundedRect(bar, radius, radius);
}

} // namespace Loadwick::RowPainting
