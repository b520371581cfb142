#pragma once

class QByteArray;
class QWindow;

/// How the window comes before the eyes of who asked for it from outside.
namespace Loadwick::WindowActivation {

/// Shows the window, in front and with the keyboard where the desktop lets it; else the desktop
/// says that it wants attention. `token` is the desktop's leave, empty where there is none.
void bringToFront(QWindow &window, const QByteArray &token);

} // namespace Loadwick::WindowActivation
