#include "theme/ColorContrast.h"

#include <algorithm>
#include <cmath>

namespace Loadwick {
namespace {

double linear(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

} // namespace

double contrast(const QColor &one, const QColor &other)
{
    const double a = luminance(one);
    const double b = luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

QColor blended(const QColor &colour, const QColor &ground)
{
    const float share = colour.alphaF();
    const auto mix = [share](float over, float under) {
        return over * share + under * (1 - share);
    };
    return QColor::fromRgbF(mix(colour.redF(), ground.redF()),
                            mix(colour.greenF(), ground.greenF()),
                            mix(colour.blueF(), ground.blueF()));
}

} // namespace Loadwick
