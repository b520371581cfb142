#include "QuickTestSetup.h"

#include "SampleBand.h"
#include "SampleOnboarding.h"
#include "theme/ApplicationStyle.h"

#include <QGuiApplication>
#include <QQmlEngine>

namespace Loadwick {

void QuickTestSetup::applicationAvailable()
{
    ApplicationStyle::prepare();
    ApplicationStyle::applyFont(*qGuiApp);
}

void QuickTestSetup::qmlEngineAvailable(QQmlEngine *engine)
{
    ApplicationStyle::addModulePath(*engine);
    qmlRegisterType<SampleBand>("LoadwickTest", 1, 0, "SampleBand");
    qmlRegisterType<SampleOnboarding>("LoadwickTest", 1, 0, "SampleOnboarding");
}

} // namespace Loadwick
