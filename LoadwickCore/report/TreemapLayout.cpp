#include "report/TreemapLayout.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <numeric>

namespace Loadwick::TreemapLayout {
namespace {

/// One weight to be placed.
struct Item
{
    std::size_t index; ///< of the weight
    double area;       ///< its share of the sum
};

/// The largest weights first; equal ones in their order.
std::vector<Item> itemsOf(std::span<const double> weights)
{
    std::vector<Item> items;
    for (std::size_t index = 0; index < weights.size(); ++index)
        if (weights[index] > 0.0 && std::isfinite(weights[index]))
            items.push_back({.index = index, .area = weights[index]});
    const auto sumUp = [](double sum, const Item &item) { return sum + item.area; };
    double sum = std::accumulate(items.begin(), items.end(), 0.0, sumUp);
    if (!std::isfinite(sum)) {
        // A power of two, so that nothing but weights that are nothing beside these is rounded.
        for (Item &item : items)
            item.area = std::ldexp(item.area, -64);
        sum = std::accumulate(items.begin(), items.end(), 0.0, sumUp);
    }
    std::stable_sort(items.begin(), items.end(),
                     [](const Item &left, const Item &right) { return left.area > right.area; });
    for (Item &item : items)
        item.area /= sum;
    return items;
}

/// The items that are to be laid out side by side, and what their shapes depend on.
struct Row
{
    std::vector<Item> items;
    double sum = 0.0;
    double minimum = std::numeric_limits<double>::max();
    double maximum = 0.0;

    void add(const Item &item)
    {
        items.push_back(item);
        sum += item.area;
        minimum = std::min(minimum, item.area);
        maximum = std::max(maximum, item.area);
    }
};

/// Of a row that has an area, along a side that has a length.
double worstRatio(const Row &row, double side) noexcept
{
    if (!(row.minimum > 0.0))
        return std::numeric_limits<double>::max();
    const double sideSquared = side * side;
    const double sumSquared = row.sum * row.sum;
    return std::max(sideSquared * row.maximum / sumSquared,
                    sumSquared / (sideSquared * row.minimum));
}

/// Whether the row is no worse with the item than without it.
bool takes(const Row &row, const Item &item, double side)
{
    if (row.items.empty() || !(row.sum > 0.0 && side > 0.0 && row.minimum > 0.0))
        return true;
    const Row extended{.items = {},
                       .sum = row.sum + item.area,
                       .minimum = std::min(row.minimum, item.area),
                       .maximum = std::max(row.maximum, item.area)};
    return worstRatio(extended, side) <= worstRatio(row, side);
}

/// What a row of that area takes away from the free space, whose edge it lies along.
double thicknessOf(double sum, double edge, double available) noexcept
{
    const double thickness = edge > 0.0 ? sum / edge : available;
    return thickness <= available ? thickness : available;
}

/// Where each item of a row begins and, one place later, ends; the last one at the very end. A row
/// that is placed has a thickness: it has an area, and the free space ends in one direction only.
std::vector<double> edgesOf(const Row &row, double thickness, double begin, double end)
{
    std::vector<double> edges{begin};
    for (const Item &item : row.items)
        edges.push_back(std::min(edges.back() + item.area / thickness, end));
    edges.back() = end;
    return edges;
}

/// The square and what of it is still free.
class Map
{
public:
    explicit Map(std::size_t count) : m_rects(count, TreemapRect::zero) {}

    [[nodiscard]] double side() const noexcept { return std::min(m_free.width, m_free.height); }
    [[nodiscard]] const std::vector<TreemapRect> &rects() const noexcept { return m_rects; }

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
        const auto edges = edgesOf(row, thickness, m_free.y, m_free.y + m_free.height);
        for (std::size_t place = 0; place < row.items.size(); ++place)
            m_rects[row.items[place].index] = {.x = m_free.x,
                                               .y = edges[place],
                                               .width = thickness,
                                               .height =
                                                   std::max(edges[place + 1] - edges[place], 0.0)};
        m_free.x += thickness;
        m_free.width = std::max(m_free.width - thickness, 0.0);
    }

    /// Along the top of the free space.
    void placeBand(const Row &row)
    {
        const double thickness = thicknessOf(row.sum, m_free.width, m_free.height);
        const auto edges = edgesOf(row, thickness, m_free.x, m_free.x + m_free.width);
        for (std::size_t place = 0; place < row.items.size(); ++place)
            m_rects[row.items[place].index] = {.x = edges[place],
                                               .y = m_free.y,
                                               .width =
                                                   std::max(edges[place + 1] - edges[place], 0.0),
                                               .height = thickness};
        m_free.y += thickness;
        m_free.height = std::max(m_free.height - thickness, 0.0);
    }

    std::vector<TreemapRect> m_rects;
    TreemapRect m_free{.x = 0.0, .y = 0.0, .width = 1.0, .height = 1.0};
};

} // namespace

std::vector<TreemapRect> layout(std::span<const double> weights)
{
    Map map(weights.size());
    Row row;
    for (const Item &item : itemsOf(weights)) {
        if (!takes(row, item, map.side())) {
            map.place(row);
            row = {};
        }
        row.add(item);
    }
    if (row.sum > 0.0)
        map.place(row);
    return map.rects();
}

} // namespace Loadwick::TreemapLayout
