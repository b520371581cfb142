#pragma once

#include <QQuickWindow>

#include "theme/Appearance.h"

namespace Loadwick {

/// What decides on the look of all that the window's engine shows; it lives as long as that engine.
[[nodiscard]] Appearance &appearanceOf(QQuickWindow &window);

} // namespace Loadwick
