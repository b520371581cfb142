#pragma once

#include <QSize>
#include <QWindow>

/// How large the window opens, in logical pixels.
namespace Loadwick::FirstSize {

/// As much of `wanted` as `room` holds, and not less than `least` either way.
[[nodiscard]] QSize within(QSize wanted, QSize least, QSize room);

/// Makes a window that was not shown yet no larger than its screen, less the panels of the desktop
/// and a title bar.
void putOn(QWindow &window);

} // namespace Loadwick::FirstSize
