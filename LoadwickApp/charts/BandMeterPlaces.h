#pragma once

#include <QList>
#include <QObject>
#include <QtQml/qqmlregistration.h>

#include "charts/BandMeterGeometry.h"

namespace Loadwick {

/// The geometry of a band meter as QML binds to it. All lists go from the lean to the excessive
/// end; one that is shorter than it should be counts as filled up with zeros.
class BandMeterPlaces : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    /// Pixels.
    Q_PROPERTY(qreal width READ width WRITE setWidth NOTIFY changed)
    /// The two thresholds and the total, as fractions of the width.
    Q_PROPERTY(QList<qreal> thresholds READ thresholds WRITE setThresholds NOTIFY changed)
    Q_PROPERTY(qreal position READ position WRITE setPosition NOTIFY changed)
    /// Where the marker is on its way to the total's position.
    Q_PROPERTY(qreal markerPosition READ markerPosition WRITE setMarkerPosition NOTIFY markerMoved)
    Q_PROPERTY(QList<qreal> labelWidths READ labelWidths WRITE setLabelWidths NOTIFY changed)

    Q_PROPERTY(qreal markerSide READ markerSide CONSTANT)
    Q_PROPERTY(qreal markerLeft READ markerLeft NOTIFY markerMoved)
    Q_PROPERTY(QList<qreal> ticks READ ticks NOTIFY changed)
    Q_PROPERTY(QList<qreal> labelLefts READ labelLefts NOTIFY changed)
    Q_PROPERTY(QList<bool> labelsShown READ labelsShown NOTIFY changed)

public:
    using QObject::QObject;

    [[nodiscard]] qreal width() const noexcept { return m_meter.width; }
    void setWidth(qreal width);
    [[nodiscard]] QList<qreal> thresholds() const;
    void setThresholds(const QList<qreal> &thresholds);
    [[nodiscard]] qreal position() const noexcept { return m_meter.position; }
    void setPosition(qreal position);
    [[nodiscard]] qreal markerPosition() const noexcept { return m_markerPosition; }
    void setMarkerPosition(qreal position);
    [[nodiscard]] QList<qreal> labelWidths() const;
    void setLabelWidths(const QList<qreal> &widths);

    [[nodiscard]] qreal markerSide() const noexcept { return BandMeterGeometry::markerSide; }
    [[nodiscard]] qreal markerLeft() const noexcept;
    [[nodiscard]] QList<qreal> ticks() const;
    [[nodiscard]] QList<qreal> labelLefts() const;
    [[nodiscard]] QList<bool> labelsShown() const;

Q_SIGNALS:
    void changed();
    void markerMoved();

private:
    BandMeterGeometry::Meter m_meter = {};
    double m_markerPosition = 0;
    std::array<double, 3> m_labelWidths = {};
};

} // namespace Loadwick
