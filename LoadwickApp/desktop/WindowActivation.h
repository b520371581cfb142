#pragma once

class QByteArray;
class QWindow;

/// How the window comes to the front when it is asked for from outside.
namespace Loadwick::WindowActivation {

/// Shows the window, in front and with the keyboard where the desktop lets it; else the desktop
/// marks it as asking for attention. `token` is the desktop's permission; empty for none.
void bringToFront(QWindow &window, const QByteArray &token);

} // namespace Loadwick::WindowActivation
