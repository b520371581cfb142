#include "charts/GaugeArc.h"

#include <cmath>

#include <QPainter>

namespace Loadwick {
namespace {

/// The painter counts angles in sixteenths of a degree.
int sixteenths(double degrees)
{
    return static_cast<int>(std::lround(degrees * 16));
}

} // namespace

GaugeArc::GaugeArc(QQuickItem *parent) : PainterItem(parent)
{
    connect(this, &GaugeArc::looksChanged, this, [this] { update(); });
}

void GaugeArc::paint(QPainter *painter)
{
    drawArc(*painter, m_track, GaugeGeometry::fullSpan);
    // An empty arc would still show its round caps, as a dot.
    if (m_value > 0)
        drawArc(*painter, m_tint, GaugeGeometry::span(m_value));
}

void GaugeArc::drawArc(QPainter &painter, const QColor &color, double span) const
{
    const qreal side = std::min(width(), height()) - m_thickness;
    const QRectF circle((width() - side) / 2, (height() - side) / 2, side, side);
    painter.setPen(QPen(color, m_thickness, Qt::SolidLine, Qt::RoundCap));
    painter.drawArc(circle, sixteenths(GaugeGeometry::startAngle), sixteenths(span));
}

} // namespace Loadwick

#include "moc_GaugeArc.cpp"
