#include "charts/DonutChart.h"

#include <algorithm>
#include <optional>

#include <QPainter>
#include <QPainterPath>
#include <QtMath>

namespace Loadwick {
namespace {

QRectF circle(qreal radius)
{
    return {-radius, -radius, 2 * radius, 2 * radius};
}

// The painter counts its degrees against the clock, from the right.
qreal painterDegrees(double angle)
{
    return 90.0 - qRadiansToDegrees(angle);
}

QPainterPath path(const DonutGeometry::Sector &sector, qreal radius)
{
    const QRectF outer = circle(radius);
    const QRectF inner = circle(radius * DonutGeometry::innerRadius);
    QPainterPath path;
    path.arcMoveTo(outer, painterDegrees(sector.outerStart));
    path.arcTo(outer, painterDegrees(sector.outerStart), -qRadiansToDegrees(sector.outerSweep));
    path.arcTo(inner, painterDegrees(sector.innerStart + sector.innerSweep),
               qRadiansToDegrees(sector.innerSweep));
    path.closeSubpath();
    return path;
}

} // namespace

void DonutChart::setTokens(const QList<qreal> &tokens)
{
    if (m_tokens == tokens)
        return;
    m_tokens = tokens;
    m_geometry = DonutGeometry({m_tokens.constData(), static_cast<std::size_t>(m_tokens.size())});
    forgetMarks();
    Q_EMIT tokensChanged();
}

void DonutChart::setColors(const QList<QColor> &colors)
{
    if (m_colors == colors)
        return;
    m_colors = colors;
    update();
    Q_EMIT colorsChanged();
}

int DonutChart::currentRow() const
{
    const int mark = currentMark();
    return mark < 0 ? -1
                    : static_cast<int>(m_geometry.slices()[static_cast<std::size_t>(mark)].row);
}

void DonutChart::paint(QPainter *painter)
{
    const std::optional<std::size_t> selected =
        currentMark() < 0 ? std::nullopt : std::optional(static_cast<std::size_t>(currentMark()));
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->translate(width() / 2, height() / 2);
    for (const auto &[slice, sector, opacity] : m_geometry.marks(radius(), selected)) {
        painter->setOpacity(opacity);
        painter->setBrush(colorOf(slice));
        painter->drawPath(path(sector, radius()));
    }
}

int DonutChart::markCount() const
{
    return static_cast<int>(m_geometry.slices().size());
}

int DonutChart::markAt(const QPointF &point) const
{
    const auto slice =
        m_geometry.sliceAt(point.x() - width() / 2, point.y() - height() / 2, radius());
    return slice ? static_cast<int>(*slice) : -1;
}

qreal DonutChart::radius() const
{
    return std::min(width(), height()) / 2;
}

QColor DonutChart::colorOf(std::size_t slice) const
{
    const auto row = static_cast<qsizetype>(m_geometry.slices()[slice].row);
    return m_colors.isEmpty() ? QColor(Qt::gray) : m_colors.at(row % m_colors.size());
}

} // namespace Loadwick
