#include "charts/DonutChart.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include <QPainter>
#include <QPainterPath>
#include <QtMath>

namespace Loadwick {
namespace {

constexpr double turn = 2.0 * std::numbers::pi;

QRectF circle(qreal radius)
{
    return {-radius, -radius, 2 * radius, 2 * radius};
}

// The painter counts degrees anticlockwise from three o'clock.
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

DonutGeometry::DonutGeometry(std::span<const double> tokens)
{
    double sum = 0.0;
    for (const double count : tokens)
        sum += std::max(count, 0.0);
    double before = 0.0;
    for (std::size_t row = 0; row < tokens.size(); ++row) {
        if (!(tokens[row] > 0.0))
            continue;
        const double after = before + tokens[row];
        const double start = turn * (before / sum);
        // From bound to bound, so that rounding errors do not accumulate.
        m_slices.push_back({row, start, turn * (after / sum) - start, after});
        before = after;
    }
}

std::optional<std::size_t> DonutGeometry::sliceAtTokens(double tokens) const noexcept
{
    if (m_slices.empty())
        return {};
    const auto slice = std::ranges::lower_bound(m_slices, tokens, {}, &Slice::upperBound);
    const auto index = static_cast<std::size_t>(slice - m_slices.begin());
    return std::min(index, m_slices.size() - 1);
}

std::optional<std::size_t> DonutGeometry::sliceAt(double x, double y, double radius) const noexcept
{
    const double distance = std::hypot(x, y);
    if (m_slices.empty() || distance > radius || distance < radius * innerRadius)
        return {};
    const double clockwise = std::atan2(x, -y);
    const double angle = clockwise < 0.0 ? clockwise + turn : clockwise;
    return sliceAtTokens(angle / turn * m_slices.back().upperBound);
}

DonutGeometry::Sector DonutGeometry::sector(std::size_t slice, double radius) const
{
    return sectorOf(m_slices.at(slice).start, m_slices.at(slice).sweep, radius);
}

std::vector<DonutGeometry::Mark> DonutGeometry::marks(double radius,
                                                      std::optional<std::size_t> selected) const
{
    std::vector<Mark> marks;
    for (std::size_t first = 0, next = 0; first < m_slices.size(); first = next) {
        const double start = m_slices[first].start;
        double sweep = 0.0;
        do {
            sweep = m_slices[next].start + m_slices[next].sweep - start;
            ++next;
        } while (next < m_slices.size() && sweep * radius < leastWidth && selected != first &&
                 selected != next);
        const double opacity = !selected || *selected == first ? 1.0 : dimmedOpacity;
        marks.push_back({first, sectorOf(start, sweep, radius), opacity});
    }
    return marks;
}

DonutGeometry::Sector DonutGeometry::sectorOf(double start, double sweep, double radius) const
{
    if (m_slices.size() == 1 || radius <= 0.0)
        return {start, sweep, start, sweep};
    const double inset = std::min(angularInset, radius * innerRadius * sweep / 4.0);
    const double outer = std::asin(inset / radius);
    const double inner = std::asin(inset / (radius * innerRadius));
    return {start + outer, sweep - 2.0 * outer, start + inner, sweep - 2.0 * inner};
}

DonutChart::DonutChart(QQuickItem *parent) : MarkedChart(parent)
{
    connect(this, &DonutChart::tokensChanged, this, &DonutChart::divide);
    connect(this, &DonutChart::colorsChanged, this, [this] { update(); });
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

void DonutChart::divide()
{
    m_geometry = DonutGeometry({m_tokens.constData(), static_cast<std::size_t>(m_tokens.size())});
    forgetMarks();
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

#include "moc_DonutChart.cpp"
