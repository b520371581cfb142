#include "charts/TrendLine.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "base/QtText.h"
#include "charts/AxisScale.h"
#include "report/OpinionBand.h"
#include "text/DateText.h"
#include "text/NumberText.h"

namespace Loadwick {
namespace {

std::int64_t upperBoundOver(std::int64_t largestTotal) noexcept
{
    // In whole numbers: in floating point 1.15 times 100,000 is a little less than 115,000.
    constexpr std::int64_t share = 20;
    constexpr std::int64_t raised = 23;
    if (largestTotal > std::numeric_limits<std::int64_t>::max() / raised * share)
        return std::numeric_limits<std::int64_t>::max();
    return largestTotal / share * raised + largestTotal % share * raised / share;
}

bool isEarlier(const LineSample &left, const LineSample &right) noexcept
{
    return left.date < right.date;
}

} // namespace

LineGeometry::LineGeometry(std::span<const LineSample> samples)
    : m_samples(samples.begin(), samples.end())
{
    std::stable_sort(m_samples.begin(), m_samples.end(), isEarlier);
    std::int64_t largestTotal = OpinionBand::excessiveThreshold;
    for (const LineSample &sample : m_samples)
        largestTotal = std::max(largestTotal, sample.total);
    m_upperBound = upperBoundOver(largestTotal);
    if (m_samples.empty())
        return;
    const DateAxisScale dates(m_samples.front().date, m_samples.back().date);
    const AxisScale totals(m_upperBound, 1);
    m_points.reserve(m_samples.size());
    for (const LineSample &sample : m_samples)
        m_points.push_back({.x = dates.position(sample.date), .y = totals.position(sample.total)});
}

std::optional<std::size_t> LineGeometry::nearest(const LinePoint &target) const noexcept
{
    const auto distance = [&target](const LinePoint &point) {
        return std::pair(std::abs(point.x - target.x), std::abs(point.y - target.y));
    };
    const auto found = std::min_element(m_points.begin(), m_points.end(),
                                        [&](const LinePoint &left, const LinePoint &right) {
                                            return distance(left) < distance(right);
                                        });
    if (found == m_points.end())
        return std::nullopt;
    return static_cast<std::size_t>(found - m_points.begin());
}

void TrendLine::setSamples(std::span<const LineSample> samples)
{
    LineGeometry geometry(samples);
    if (geometry.samples() == m_geometry.samples())
        return;
    m_geometry = std::move(geometry);
    Q_EMIT changed();
}

QString TrendLine::date(std::size_t index) const
{
    return qtText(dateText(m_geometry.samples().at(index).date, DateForm::dayAndTime, m_locale));
}

QString TrendLine::total(std::size_t index) const
{
    return tr("%1 tokens")
        .arg(qtText(NumberText::grouped(m_geometry.samples().at(index).total, m_locale)));
}

} // namespace Loadwick

#include "moc_TrendLine.cpp"
