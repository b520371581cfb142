#pragma once

#include <QColor>
#include <QList>

namespace Loadwick {

/// The contrast of two opaque colours, 1 to 21, by the formula of WCAG 2.
[[nodiscard]] double contrast(const QColor &one, const QColor &other);

/// What is seen where `colour`, which may be translucent, lies on `ground`.
[[nodiscard]] QColor blended(const QColor &colour, const QColor &ground);

/// The user's accent in a lightness in which it can be read as text, 4.5:1 by WCAG 2, on each of
/// the grounds and on a tint of itself over them; on dark grounds it gets lighter, on light ones
/// darker, no more than it takes. Moved rather than refused, for yellow is nobody's text on white,
/// and users recognise their accent by its hue. `tint` is the opacity of the strongest tint.
[[nodiscard]] QColor readableAccent(const QColor &accent, const QList<QColor> &grounds, float tint);

} // namespace Loadwick
