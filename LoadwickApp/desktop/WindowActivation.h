#pragma once

class QByteArray;
class QWindow;

/// Brings the window to the front on a request from outside.
namespace Loadwick::WindowActivation {

/// Shows the window, raised and focused if the desktop allows it; otherwise the desktop marks it as
/// demanding attention. `token` is the desktop's permission; empty for none.
void bringToFront(QWindow &window, const QByteArray &token);

} // namespace Loadwick::WindowActivation
