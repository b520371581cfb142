#include "shell/ApplicationSetup.h"

#include <QGuiApplication>

#include "shell/AccessiblePress.h"
#include "shell/ModalGround.h"
#include "theme/ApplicationStyle.h"

namespace Loadwick::ApplicationSetup {

void prepare()
{
    QCoreApplication::setApplicationName(QStringLiteral("loadwick"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Loadwick"));
    QGuiApplication::setDesktopFileName(QStringLiteral("loadwick"));
    ApplicationStyle::prepare();
}

void apply(QGuiApplication &application)
{
    ApplicationStyle::applyFont(application);
    AccessiblePress::install();
    ModalGround::install();
}

} // namespace Loadwick::ApplicationSetup
