#include "desktop/WindowActivation.h"

#include <QByteArray>
#include <QWindow>

namespace Loadwick::WindowActivation {

void bringToFront(QWindow &window, const QByteArray &token)
{
    // Qt's Wayland platform reads the token from here, where a launcher leaves it too.
    if (!token.isEmpty())
        qputenv("XDG_ACTIVATION_TOKEN", token);
    window.setWindowStates(window.windowStates() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
    window.requestActivate();
    if (!window.isActive())
        window.alert(0);
}

} // namespace Loadwick::WindowActivation
