#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>

namespace Loadwick {

/// Where the program says something outside its window. It shows one notice at most. Belongs to the
/// interface thread and never blocks it.
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

    /// Replaces the notice that is shown, if the desktop can show any.
    virtual void show(const Notice &notice) = 0;

    /// Takes back the notice that is shown or on its way; does nothing without one.
    virtual void withdraw() = 0;

Q_SIGNALS:
    /// The user asks for what the notice is about. `token` is the desktop's permission to come to
    /// the front, if it gave one.
    void pressed(const QByteArray &token);
};

} // namespace Loadwick
