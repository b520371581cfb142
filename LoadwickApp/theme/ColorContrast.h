#pragma once

#include <QColor>

namespace Loadwick {

/// The contrast of two opaque colours, 1 to 21, by the formula of WCAG 2.
[[nodiscard]] double contrast(const QColor &one, const QColor &other);

/// What is seen where `colour`, which may be translucent, lies on `ground`.
[[nodiscard]] QColor blended(const QColor &colour, const QColor &ground);

} // namespace Loadwick
