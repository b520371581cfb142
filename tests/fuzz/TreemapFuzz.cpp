#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <vector>

#include "fuzz/FuzzInput.h"
#include "fuzz/FuzzTarget.h"
#include "report/TreemapLayout.h"

namespace Loadwick {

namespace {

constexpr std::size_t mostWeights = 48; // every pair of rectangles is compared

/// A weight on each line; a line that is not a number is 0.
std::vector<double> weightsIn(FuzzInput input)
{
    std::vector<double> weights;
    while (!input.isAtEnd() && weights.size() < mostWeights) {
        const std::string_view line = input.takeLine();
        double weight = 0.0;
        std::from_chars(line.data(), line.data() + line.size(), weight);
        weights.push_back(weight);
    }
    return weights;
}

bool counts(double weight)
{
    return std::isfinite(weight) && weight > 0.0;
}

double overlapOf(const TreemapRect &left, const TreemapRect &right)
{
    const double width =
        std::min(left.x + left.width, right.x + right.width) - std::max(left.x, right.x);
    const double height =
        std::min(left.y + left.height, right.y + right.height) - std::max(left.y, right.y);
    return std::max(width, 0.0) * std::max(height, 0.0);
}

bool isInside(const TreemapRect &rect)
{
    return rect.x >= 0.0 && rect.y >= 0.0 && rect.width >= 0.0 && rect.height >= 0.0 &&
           rect.x + rect.width <= 1.0 + 1e-9 && rect.y + rect.height <= 1.0 + 1e-9;
}

void checkTreemap(std::string_view input)
{
    const std::vector<double> weights = weightsIn(FuzzInput(input));
    const std::vector<TreemapRect> rects = TreemapLayout::layout(weights);
    require(rects.size() == weights.size(), "every weight has its rectangle");
    long double sum = 0.0L;
    for (const double weight : weights)
        sum += counts(weight) ? static_cast<long double>(weight) : 0.0L;
    for (std::size_t index = 0; index < rects.size(); ++index) {
        const bool isShown = counts(weights[index]);
        require(isShown || rects[index] == TreemapRect::zero,
                "an item without weight has no rectangle");
        require(isInside(rects[index]), "a rectangle is inside the square");
        const auto share = isShown ? static_cast<double>(weights[index] / sum) : 0.0;
        require(std::abs(rects[index].area() - share) < 1e-9, "an area is the weight's share");
        for (std::size_t other = 0; other < index; ++other)
            require(overlapOf(rects[index], rects[other]) < 1e-9, "no two rectangles overlap");
    }
}

const FuzzTarget target("Treemap", checkTreemap);

} // namespace

} // namespace Loadwick
