#include "theme/ReadableAccent.h"

#include <algorithm>

#include "theme/ColorContrast.h"

namespace Loadwick {
namespace {

constexpr double leastContrast = 4.5;
constexpr float lightnessStep = 0.01F;

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
