#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace Loadwick {

/// The name of a folder or file for one line, where it is told from others by what it looks like.
class ShownName : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    /// The name, with an escape in the place of each letter that would not be seen but end the line
    /// or turn the order of the others: "\n", "\t", "\u202E".
    [[nodiscard]] Q_INVOKABLE static QString of(const QString &name);
};

} // namespace Loadwick
