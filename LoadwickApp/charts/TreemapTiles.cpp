#include "charts/TreemapTiles.h"

#include <algorithm>
#include <cmath>

#include "report/TreemapLayout.h"

namespace Loadwick {
namespace {

constexpr double gap = 1.0;
/// A tile thinner than this would lose too much of itself to the gap.
constexpr double leastWithGap = 3.0;

/// Where a tile lies along one axis.
struct Stretch
{
    double start;
    double length;
};

Stretch snapped(Stretch exact, double frame, double pixelsPerPoint)
{
    const auto onGrid = [pixelsPerPoint](double value) {
        return std::round(value * pixelsPerPoint) / pixelsPerPoint;
    };
    const double start = onGrid(exact.start);
    const double end = onGrid(exact.start + exact.length);
    const bool isLast = end >= onGrid(frame);
    const double length = end - start;
    return {.start = start, .length = isLast || length < leastWithGap ? length : length - gap};
}

} // namespace

TreemapTiles::TreemapTiles(std::span<const double> weights)
    : m_shares(TreemapLayout::layout(weights))
{}

void TreemapTiles::setFrame(double width, double height) noexcept
{
    m_width = std::max(width, 0.0);
    m_height = std::max(height, 0.0);
}

TreemapRect TreemapTiles::tile(std::size_t index) const
{
    const TreemapRect &share = m_shares.at(index);
    return {.x = share.x * m_width,
            .y = share.y * m_height,
            .width = share.width * m_width,
            .height = share.height * m_height};
}

bool TreemapTiles::showsName(std::size_t index) const
{
    const TreemapRect rect = tile(index);
    return rect.width >= leastNameWidth && rect.height >= leastNameHeight;
}

int TreemapTiles::tileAt(double x, double y) const
{
    const auto holds = [unitX = x / m_width, unitY = y / m_height](const TreemapRect &share) {
        return unitX >= share.x && unitX < share.x + share.width && unitY >= share.y &&
               unitY < share.y + share.height;
    };
    const auto found = std::find_if(m_shares.begin(), m_shares.end(), holds);
    return found == m_shares.end() ? -1 : static_cast<int>(found - m_shares.begin());
}

TreemapTiles::Box TreemapTiles::box(std::size_t index, double pixelsPerPoint) const
{
    const TreemapRect rect = tile(index);
    const Stretch across = snapped({rect.x, rect.width}, m_width, pixelsPerPoint);
    const Stretch down = snapped({rect.y, rect.height}, m_height, pixelsPerPoint);
    return {.left = across.start, .top = down.start, .width = across.length, .height = down.length};
}

} // namespace Loadwick
