#pragma once

#include <functional>
#include <string>

#include <QQuickItem>
#include <QQuickWindow>

#include "theme/Appearance.h"

/// Controls a window of the program from outside.
namespace Loadwick::WindowControl {

/// Runs the interface thread's events until `isReached` holds. The program ends, with `what` in its
/// last line, when that takes longer than half a minute.
void waitUntil(const std::string &what, const std::function<bool()> &isReached);

/// Processes events until the latest changes are laid out and drawn.
void settle();

/// The look of everything that the window's engine shows; it lives as long as that engine.
[[nodiscard]] Appearance &appearanceOf(QQuickWindow &window);

/// Presses the visible, enabled button of that name as assistive technology does; false when there
/// is none.
[[nodiscard]] bool pressButton(QWindow &window, const QString &name);

/// The Flickable in which the visible page scrolls; null when the page does not scroll.
[[nodiscard]] QQuickItem *pageViewport(const QQuickWindow &window);

/// The number of pixels by which the content exceeds the Flickable.
[[nodiscard]] double hiddenHeight(const QQuickItem &viewport);

} // namespace Loadwick::WindowControl
