#include "shell/ApplicationSetup.h"

#include <QGuiApplication>
#include <QLocale>

#include "shell/AccessibleEvents.h"
#include "shell/AccessiblePress.h"
#include "shell/ModalGround.h"
#include "theme/ApplicationStyle.h"

namespace Loadwick::ApplicationSetup {

void prepare()
{
    QCoreApplication::setApplicationName(QStringLiteral("loadwick"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Loadwick"));
    QGuiApplication::setDesktopFileName(QStringLiteral("io.github.loadwick.Loadwick"));
    ApplicationStyle::prepare();
}

void apply()
{
    // Qt would use the language of its own translations, of which there are none.
    if (QLocale(QLocale().uiLanguages().value(0)).textDirection() == Qt::RightToLeft)
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    AccessibleEvents::install();
    AccessiblePress::install();
    ModalGround::install();
}

} // namespace Loadwick::ApplicationSetup
