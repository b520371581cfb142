#include "theme/ColorContrast.h"

#include <algorithm>
#include <cmath>

namespace Loadwick {
namespace {

constexpr double leastContrast = 4.5;
constexpr float lightnessStep = 0.01F;

double linear(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

bool isReadable(const QColor &accent, const QList<QColor> &grounds, float tint)
{
    QColor capsule = accent;
    capsule.setAlphaF(tint);
    return std::ranges::all_of(grounds, [&](const QColor &ground) {
        return contrast(accent, ground) >= leastContrast &&
               contrast(accent, blended(capsule, ground)) >= leastContrast;
    });
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

QColor readableAccent(const QColor &accent, const QList<QColor> &grounds, float tint)
{
    const bool onDark =
        std::ranges::all_of(grounds, [](const QColor &ground) { return ground.lightness() < 128; });
    const float step = onDark ? lightnessStep : -lightnessStep;
    QColor found = accent.toRgb();
    found.setAlpha(255);
    float lightness = found.lightnessF();
    while (!isReadable(found, grounds, tint) && (onDark ? lightness < 1.0F : lightness > 0.0F)) {
        lightness = std::clamp(lightness + step, 0.0F, 1.0F);
        found = QColor::fromHslF(std::max(0.0F, found.hslHueF()), found.hslSaturationF(), lightness)
                    .toRgb();
    }
    return found;
}

} // namespace Loadwick
