#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>

namespace Loadwick {

/// Where the program says something outside its window. It shows one notice at most. Belongs to the
/// interface thread; nothing of it waits.
class NoticeBoard : public QObject
{
    Q_OBJECT

public:
    struct Notice
    {
        QString title;
        QString body; ///< plain text; line feeds part its lines
    };

    using QObject::QObject;

    /// Shows the notice in the place of the one before, if the desktop can.
    virtual void show(const Notice &notice) = 0;

    /// Takes back what is shown, or about to be; does nothing without a notice.
    virtual void withdraw() = 0;

Q_SIGNALS:
    /// The user wants to see what the notice is about. `token` is the desktop's leave to come to
    /// the front, if it gave one.
    void pressed(const QByteArray &token);
};

} // namespace Loadwick
