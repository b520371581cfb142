#pragma once

#include <algorithm>

#include <QColor>
#include <QtQml/qqmlregistration.h>

#include "base/PainterItem.h"

namespace Loadwick {

/// A gauge from 0 to 100 on three quarters of a circle, open at the bottom. Angles are degrees,
/// counted anticlockwise from three o'clock; a negative span goes clockwise.
namespace GaugeGeometry {

inline constexpr double startAngle = 225;
inline constexpr double fullSpan = -270;

/// How far the gauge is filled; the value is clamped.
[[nodiscard]] constexpr double span(double value) noexcept
{
    return fullSpan * std::clamp(value, 0.0, 100.0) / 100;
}

} // namespace GaugeGeometry

/// The ring of a gauge that fills clockwise from its lower left to its lower right end. It fills
/// the item and has no text.
class GaugeArc : public Loadwick::PainterItem
{
    Q_OBJECT
    QML_ELEMENT
    /// 0 to 100; painted clamped.
    Q_PROPERTY(qreal value MEMBER m_value NOTIFY looksChanged)
    Q_PROPERTY(qreal thickness MEMBER m_thickness NOTIFY looksChanged)
    Q_PROPERTY(QColor tint MEMBER m_tint NOTIFY looksChanged)
    /// The colour of the unfilled part.
    Q_PROPERTY(QColor track MEMBER m_track NOTIFY looksChanged)

public:
    explicit GaugeArc(QQuickItem *parent = nullptr);

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void looksChanged();

private:
    void drawArc(QPainter &painter, const QColor &color, double span) const;

    qreal m_value = 0;
    qreal m_thickness = 8;
    QColor m_tint = Qt::black;
    QColor m_track = Qt::transparent;
};

} // namespace Loadwick
