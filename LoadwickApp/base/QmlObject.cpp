#include "base/QmlObject.h"

#include <QQmlComponent>
#include <QUrl>

namespace Loadwick {

std::unique_ptr<QObject> qmlObject(QQmlEngine &engine, const QUrl &url,
                                   const QVariantMap &properties, QString &failure)
{
    QQmlComponent component(&engine, url);
    // Creating from a component that is not ready ends the program.
    std::unique_ptr<QObject> object(
        component.isReady() ? component.createWithInitialProperties(properties) : nullptr);
    if (component.isError())
        object.reset();
    if (!object)
        failure = component.errorString();
    return object;
}

} // namespace Loadwick
