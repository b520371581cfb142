#include "report/TreemapLayout.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <numeric>
#include <utility>

namespace Loadwick::TreemapLayout {
namespace {

/// A weight to lay out.
struct Item
{
    std::size_t index; ///< of the weight
    double area;       ///< its share of the sum
};

/// The largest weights first; equal ones in their order.
std::vector<Item> itemsOf(std::span<const double> weights)
{
    std::vector<Item> items;
    items.reserve(weights.size());
    for (std::size_t index = 0; index < weights.size(); ++index)
        if (weights[index] > 0.0 && std::isfinite(weights[index]))
            items.push_back({.index = index, .area = weights[index]});
    const auto sumUp = [](double sum, const Item &item) { return sum + item.area; };
    double sum = std::accumulate(items.begin(), items.end(), 0.0, sumUp);
    if (!std::isfinite(sum)) {
        // A power of two, so that only negligible weights are rounded.
        for (Item &item : items)
            item.area = std::ldexp(item.area, -64);
        sum = std::accumulate(items.begin(), items.end(), 0.0, sumUp);
    }
    std::sort(items.begin(), items.end(), [](const Item &left, const Item &right) {
        return left.area != right.area ? left.area > right.area : left.index < right.index;
    });
    for (Item &item : items)
        item.area /= sum;
    return items;
}

/// Items laid out side by side, and what their shapes depend on.
struct Row
{
    std::span<const Item> items; ///< neighbours in the order of all items
    double sum = 0.0;
    double minimum = std::numeric_limits<double>::max();
    double maximum = 0.0;
    double worstRatio = std::numeric_limits<double>::max();
};

/// Along a side of the free space; the largest double for a row without area or length.
double worstRatio(const Row &row, double side) noexcept
{
    if (!(row.sum > 0.0 && side > 0.0 && row.minimum > 0.0))
        return std::numeric_limits<double>::max();
    const double sideSquared = side * side;
    const double sumSquared = row.sum * row.sum;
    return std::max(sideSquared * row.maximum / sumSquared,
                    sumSquared / (sideSquared * row.minimum));
}

/// The row extended by the item after its last one.
Row extended(const Row &row, const Item &item, double side) noexcept
{
    const Item *const first = row.items.empty() ? &item : row.items.data();
    Row longer{.items = {first, row.items.size() + 1},
               .sum = row.sum + item.area,
               .minimum = std::min(row.minimum, item.area),
               .maximum = std::max(row.maximum, item.area)};
    longer.worstRatio = worstRatio(longer, side);
    return longer;
}

/// How much of the free space a row of that area takes when it is laid along an edge.
double thicknessOf(double sum, double edge, double available) noexcept
{
    const double thickness = edge > 0.0 ? sum / edge : available;
    return thickness <= available ? thickness : available;
}

/// The end of the row's item that begins at `begin`; the last item ends at `end`. A placed row has
/// a thickness: it has an area, and the free space is used up in one direction only.
double itemEnd(const Row &row, const Item &item, double begin, double thickness, double end)
{
    if (&item == &row.items.back())
        return end;
    return std::min(begin + item.area / thickness, end);
}

/// The square and the part of it that is still free.
class Map
{
public:
    explicit Map(std::size_t count) : m_rects(count, TreemapRect::zero) {}

    [[nodiscard]] double side() const noexcept { return std::min(m_free.width, m_free.height); }
    [[nodiscard]] std::vector<TreemapRect> takeRects() { return std::move(m_rects); }

    void place(const Row &row)
    {
        if (m_free.height <= m_free.width)
            placeColumn(row);
        else
            placeBand(row);
    }

private:
    /// At the left edge of the free space.
    void placeColumn(const Row &row)
    {
        const double thickness = thicknessOf(row.sum, m_free.height, m_free.width);
        double begin = m_free.y;
        for (const Item &item : row.items) {
            const double end = itemEnd(row, item, begin, thickness, m_free.y + m_free.height);
            m_rects[item.index] = {.x = m_free.x,
                                   .y = begin,
                                   .width = thickness,
                                   .height = std::max(end - begin, 0.0)};
            begin = end;
        }
        m_free.x += thickness;
        m_free.width = std::max(m_free.width - thickness, 0.0);
    }

    /// Along the top of the free space.
    void placeBand(const Row &row)
    {
        const double thickness = thicknessOf(row.sum, m_free.width, m_free.height);
        double begin = m_free.x;
        for (const Item &item : row.items) {
            const double end = itemEnd(row, item, begin, thickness, m_free.x + m_free.width);
            m_rects[item.index] = {.x = begin,
                                   .y = m_free.y,
                                   .width = std::max(end - begin, 0.0),
                                   .height = thickness};
            begin = end;
        }
        m_free.y += thickness;
        m_free.height = std::max(m_free.height - thickness, 0.0);
    }

    std::vector<TreemapRect> m_rects;
    TreemapRect m_free{.x = 0.0, .y = 0.0, .width = 1.0, .height = 1.0};
};

} // namespace

std::vector<TreemapRect> layout(std::span<const double> weights)
{
    const std::vector<Item> items = itemsOf(weights);
    Map map(weights.size());
    Row row;
    for (const Item &item : items) {
        Row longer = extended(row, item, map.side());
        if (!row.items.empty() && !(longer.worstRatio <= row.worstRatio)) {
            map.place(row);
            longer = extended({}, item, map.side());
        }
        row = longer;
    }
    if (row.sum > 0.0)
        map.place(row);
    return map.takeRects();
}

} // namespace Loadwick::TreemapLayout
