#include "charts/GaugeArc.h"

#include <algorithm>
#include <cmath>

#include <QPainter>

#include "charts/GaugeGeometry.h"

namespace Loadwick {
namespace {

/// The painter counts angles in sixteenths of a degree.
int sixteenths(double degrees)
{
    return static_cast<int>(std::lround(degrees * 16));
}

} // namespace

GaugeArc::GaugeArc(QQuickItem *parent) : QQuickPaintedItem(parent)
{
    setAntialiasing(true);
    connect(this, &GaugeArc::valueChanged, this, [this] { update(); });
    connect(this, &GaugeArc::thicknessChanged, this, [this] { update(); });
    connect(this, &GaugeArc::tintChanged, this, [this] { update(); });
    connect(this, &GaugeArc::trackChanged, this, [this] { update(); });
}

void GaugeArc::setValue(qreal value)
{
    if (m_value == value)
        return;
    m_value = value;
    Q_EMIT valueChanged();
}

void GaugeArc::setThickness(qreal thickness)
{
    if (m_thickness == thickness)
        return;
    m_thickness = thickness;
    Q_EMIT thicknessChanged();
}

void GaugeArc::setTint(const QColor &tint)
{
    if (m_tint == tint)
        return;
    m_tint = tint;
    Q_EMIT tintChanged();
}

void GaugeArc::setTrack(const QColor &track)
{
    if (m_track == track)
        return;
    m_track = track;
    Q_EMIT trackChanged();
}

void GaugeArc::paint(QPainter *painter)
{
    drawArc(*painter, m_track, GaugeGeometry::fullSpan);
    // The round ends of an arc without length would show a dot where there is nothing.
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
