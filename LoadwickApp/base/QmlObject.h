#pragma once

#include <memory>

#include <QObject>
#include <QString>
#include <QVariantMap>

class QQmlEngine;
class QUrl;

namespace Loadwick {

/// Creates the object that one of the program's QML files describes. Null if the file, or one that
/// it uses, has an error or requires a property that was not given; `failure` then says which.
[[nodiscard]] std::unique_ptr<QObject> qmlObject(QQmlEngine &engine, const QUrl &url,
                                                 const QVariantMap &properties, QString &failure);

} // namespace Loadwick
