#include "theme/DesktopWishes.h"

namespace Loadwick {

DesktopWishes DesktopWishes::orElse(const DesktopWishes &other) const
{
    return {.dark = dark ? dark : other.dark,
            .reducedMotion = reducedMotion ? reducedMotion : other.reducedMotion,
            .moreContrast = moreContrast ? moreContrast : other.moreContrast,
            .accent = accent ? accent : other.accent};
}

} // namespace Loadwick
