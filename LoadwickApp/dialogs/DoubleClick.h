#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace Loadwick {

/// A double click on a line of a dialog that Qt draws inside the window.
class DoubleClick : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    /// Leaves it to the line's page alone. Qt by itself takes for a file what is no folder any
    /// more, and for a dialog for files any that shows one: in a dialog for folders it ends the
    /// program.
    Q_INVOKABLE static void takeFromQt(QObject *line);
};

} // namespace Loadwick
