#pragma once

#include <memory>

#include <QObject>
#include <QString>
#include <QVariantMap>

class QQmlEngine;
class QUrl;

namespace Loadwick {

/// Makes the object that a QML file of the program describes. Null when the file, or one that it
/// uses, has a mistake or wants a property that was not given; `failure` then says which.
[[nodiscard]] std::unique_ptr<QObject> qmlObject(QQmlEngine &engine, const QUrl &url,
                                                 const QVariantMap &properties, QString &failure);

} // namespace Loadwick
