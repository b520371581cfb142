#pragma once

#include <QColor>
#include <QList>

namespace Loadwick {

/// The contrast of two opaque colours, 1 to 21, by the formula of WCAG 2.
[[nodiscard]] double contrast(const QColor &one, const QColor &other);

/// The visible colour of `colour`, which may be translucent, on `ground`.
[[nodiscard]] QColor blended(const QColor &colour, const QColor &ground);

/// The user's accent, readable as text (4.5:1 by WCAG 2) on each of the grounds and on a tint of
/// itself over them: lightened on dark grounds, darkened on light ones, no more than needed. Not
/// replaced, although yellow is unreadable on white: users recognise their accent by its hue.
/// `tint` is the opacity of the strongest tint.
[[nodiscard]] QColor readableAccent(const QColor &accent, const QList<QColor> &grounds, float tint);

} // namespace Loadwick
