#include "theme/PaletteAppearanceSource.h"

#include <QEvent>
#include <QGuiApplication>
#include <QPalette>

namespace Loadwick {

PaletteAppearanceSource::PaletteAppearanceSource(QObject *parent) : AppearanceSource(parent)
{
    qGuiApp->installEventFilter(this);
}

DesktopWishes PaletteAppearanceSource::wishes() const
{
    return {.dark = QGuiApplication::palette().window().color().lightness() < 128};
}

bool PaletteAppearanceSource::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == qGuiApp && event->type() == QEvent::ApplicationPaletteChange)
        Q_EMIT changed();
    return AppearanceSource::eventFilter(watched, event);
}

} // namespace Loadwick
