#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>

namespace Loadwick {

/// Shows notices outside the window, one at most. Belongs to the interface thread and never blocks
/// it.
class NoticeBoard : public QObject
{
    Q_OBJECT

public:
    struct Notice
    {
        QString title;
        QString body; ///< plain text; line feeds separate lines
    };

    using QObject::QObject;

    /// Replaces the visible notice, if the desktop can show any.
    virtual void show(const Notice &notice) = 0;

    /// Withdraws the notice that is visible or pending; a no-op without one.
    virtual void withdraw() = 0;

Q_SIGNALS:
    /// The user activated the notice. `token` is the desktop's permission to raise the window, if
    /// it gave one.
    void pressed(const QByteArray &token);
};

} // namespace Loadwick
