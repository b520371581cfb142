#pragma once

#include <QColor>

class QQmlEngine;

/// The look of what Qt itself draws: dialogs with their menus and tool tips, and the title bar
/// where a Wayland compositor leaves it to its programs.
namespace Loadwick::ApplicationLook {

/// Gives the application the engine's AppTheme as palette and font, and follows its changes while
/// the engine lives.
void follow(QQmlEngine &engine);

/// The ground of the desktop's own windows, whatever `follow` has set.
[[nodiscard]] QColor desktopGround();

} // namespace Loadwick::ApplicationLook
