#pragma once

#include <QQuickItem>
#include <QQuickWindow>

namespace Loadwick {

/// The Flickable in which the page that shows scrolls; null when the page does not scroll.
[[nodiscard]] QQuickItem *pageViewport(const QQuickWindow &window);

/// How many pixels of its content a Flickable has no room for.
[[nodiscard]] double hiddenHeight(const QQuickItem &viewport);

} // namespace Loadwick
