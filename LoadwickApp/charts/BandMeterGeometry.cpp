#include "charts/BandMeterGeometry.h"

#include <algorithm>
#include <cstddef>

namespace Loadwick {
namespace BandMeterGeometry {
namespace {

using Order = std::array<std::size_t, 3>;

/// The segment that a position lies in; a threshold belongs to the heavy segment on either side.
std::size_t segmentAt(const Meter &meter)
{
    if (meter.position < meter.thresholds[0])
        return 0;
    return meter.position > meter.thresholds[1] ? 2 : 1;
}

Order labelOrder(const Meter &meter, const std::array<Extent, 3> &segments)
{
    const std::size_t first = segmentAt(meter);
    Order order = {0, 1, 2};
    std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
        if (a == first || b == first)
            return a == first && b != first;
        return segments[a].width > segments[b].width;
    });
    return order;
}

/// The room left for the label of `segment` by the labels laid out so far.
Extent freeExtent(const std::array<Label, 3> &labels, std::size_t segment, double width)
{
    double left = 0;
    double right = width;
    for (std::size_t other = 0; other < labels.size(); ++other) {
        if (!labels[other].isShown)
            continue;
        if (other < segment)
            left = std::max(left, labels[other].extent.right() + labelGap);
        if (other > segment)
            right = std::min(right, labels[other].extent.left - labelGap);
    }
    return {.left = left, .width = right - left};
}

Label fitted(double width, const Extent &segment, const Extent &room)
{
    if (width > room.width)
        return {};
    const double left =
        std::max(room.left, std::min(segment.middle() - width / 2, room.right() - width));
    const bool isUnderItsSegment = left <= segment.middle() && segment.middle() <= left + width;
    return {.extent = {.left = left, .width = width}, .isShown = isUnderItsSegment};
}

} // namespace

std::array<Extent, 3> segments(const Meter &meter) noexcept
{
    const auto [heavy, excessive] = ticks(meter);
    return {Extent{.left = 0, .width = heavy}, Extent{.left = heavy, .width = excessive - heavy},
            Extent{.left = excessive, .width = meter.width - excessive}};
}

std::array<double, 2> ticks(const Meter &meter) noexcept
{
    return {meter.width * meter.thresholds[0], meter.width * meter.thresholds[1]};
}

double markerLeft(double width, double position) noexcept
{
    const double rightmost = std::max(width - markerSide, 0.0);
    return std::clamp(width * position - markerSide / 2, 0.0, rightmost);
}

std::array<Label, 3> labels(const Meter &meter, const std::array<double, 3> &widths) noexcept
{
    const std::array<Extent, 3> extents = segments(meter);
    std::array<Label, 3> labels = {};
    for (const std::size_t segment : labelOrder(meter, extents)) {
        const Extent room = freeExtent(labels, segment, meter.width);
        labels[segment] = fitted(widths[segment], extents[segment], room);
    }
    return labels;
}

} // namespace BandMeterGeometry

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

qreal BandMeterLayout::markerLeft(qreal width, qreal position) noexcept
{
    return BandMeterGeometry::markerLeft(width, position);
}

QList<qreal> BandMeterLayout::ticks() const
{
    const auto ticks = BandMeterGeometry::ticks(meter());
    return {ticks.begin(), ticks.end()};
}

QList<qreal> BandMeterLayout::labelLefts() const
{
    QList<qreal> lefts;
    for (const auto &label : labels())
        lefts.append(label.extent.left);
    return lefts;
}

QList<bool> BandMeterLayout::labelsShown() const
{
    QList<bool> shown;
    for (const auto &label : labels())
        shown.append(label.isShown);
    return shown;
}

BandMeterGeometry::Meter BandMeterLayout::meter() const
{
    return {.width = m_width, .thresholds = filled<2>(m_thresholds), .position = m_position};
}

std::array<BandMeterGeometry::Label, 3> BandMeterLayout::labels() const
{
    return BandMeterGeometry::labels(meter(), filled<3>(m_labelWidths));
}

} // namespace Loadwick

#include "moc_BandMeterGeometry.cpp"
