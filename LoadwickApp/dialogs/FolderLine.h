#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace Loadwick {

/// The line of a folder in a dialog that Qt draws inside the window.
class FolderLine : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    /// Leaves a double click to the line's page alone. Qt by itself takes for a file what is no
    /// folder any more, and for a dialog for files any that shows one: in a dialog for folders it
    /// ends the program.
    Q_INVOKABLE static void takeFromQt(QObject *line);

    /// Has the dialog show the folder. Without a question to the disk: one that is gone has nothing
    /// to show.
    Q_INVOKABLE static void enter(QObject *line);
};

} // namespace Loadwick
