#include "charts/BandMeterPlaces.h"

#include <algorithm>
#include <cstddef>

namespace Loadwick {
namespace {

template<std::size_t size>
std::array<double, size> filled(const QList<qreal> &values)
{
    std::array<double, size> array = {};
    const auto count = std::min(values.size(), static_cast<qsizetype>(size));
    std::copy_n(values.begin(), count, array.begin());
    return array;
}

} // namespace

void BandMeterPlaces::setWidth(qreal width)
{
    m_meter.width = width;
    Q_EMIT changed();
    Q_EMIT markerMoved();
}

QList<qreal> BandMeterPlaces::thresholds() const
{
    return {m_meter.thresholds.begin(), m_meter.thresholds.end()};
}

void BandMeterPlaces::setThresholds(const QList<qreal> &thresholds)
{
    m_meter.thresholds = filled<2>(thresholds);
    Q_EMIT changed();
}

void BandMeterPlaces::setPosition(qreal position)
{
    m_meter.position = position;
    Q_EMIT changed();
}

void BandMeterPlaces::setMarkerPosition(qreal position)
{
    m_markerPosition = position;
    Q_EMIT markerMoved();
}

QList<qreal> BandMeterPlaces::labelWidths() const
{
    return {m_labelWidths.begin(), m_labelWidths.end()};
}

void BandMeterPlaces::setLabelWidths(const QList<qreal> &widths)
{
    m_labelWidths = filled<3>(widths);
    Q_EMIT changed();
}

qreal BandMeterPlaces::markerLeft() const noexcept
{
    return BandMeterGeometry::markerLeft(m_meter.width, m_markerPosition);
}

QList<qreal> BandMeterPlaces::ticks() const
{
    const auto ticks = BandMeterGeometry::ticks(m_meter);
    return {ticks.begin(), ticks.end()};
}

QList<qreal> BandMeterPlaces::labelLefts() const
{
    QList<qreal> lefts;
    for (const auto &label : BandMeterGeometry::labels(m_meter, m_labelWidths))
        lefts.append(label.extent.left);
    return lefts;
}

QList<bool> BandMeterPlaces::labelsShown() const
{
    QList<bool> shown;
    for (const auto &label : BandMeterGeometry::labels(m_meter, m_labelWidths))
        shown.append(label.isShown);
    return shown;
}

} // namespace Loadwick
