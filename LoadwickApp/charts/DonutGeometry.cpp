#include "charts/DonutGeometry.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace Loadwick {
namespace {

constexpr double turn = 2.0 * std::numbers::pi;

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
        // From bound to bound, so that nothing is lost or won between many slices.
        m_slices.push_back({row, start, turn * (after / sum) - start, after});
        before = after;
    }
}

std::optional<std::size_t> DonutGeometry::sliceAtTokens(double tokens) const noexcept
{
    if (m_slices.empty())
        return {};
    const auto slice = std::ranges::lower_bound(m_slices, tokens, {}, &Slice::upperBound);
    const auto place = static_cast<std::size_t>(slice - m_slices.begin());
    return std::min(place, m_slices.size() - 1);
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
        marks.push_back({first, sectorOf(start, sweep, radius), opacity(first, selected)});
    }
    return marks;
}

double DonutGeometry::opacity(std::size_t slice, std::optional<std::size_t> selected) noexcept
{
    return !selected || *selected == slice ? 1.0 : dimmedOpacity;
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

} // namespace Loadwick
