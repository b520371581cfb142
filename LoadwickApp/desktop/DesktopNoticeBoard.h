#pragma once

#include <functional>
#include <memory>
#include <optional>

#include <QDBusConnection>
#include <QDBusMessage>

#include "desktop/NoticeBoard.h"
#include "model/TaskDispatcher.h"

class QDBusPendingCallWatcher;

namespace Loadwick {

/// Desktop notifications over org.freedesktop.Notifications. Connects to the bus in the background,
/// and only when there is something to show. Without a bus or a service it silently shows nothing.
class DesktopNoticeBoard final : public NoticeBoard
{
    Q_OBJECT

public:
    /// Called off the interface thread.
    using Connect = std::function<QDBusConnection()>;

    explicit DesktopNoticeBoard(std::shared_ptr<TaskDispatcher> dispatcher,
                                Connect connect = &QDBusConnection::sessionBus,
                                QObject *parent = nullptr);

    void show(const Notice &notice) override;
    void withdraw() override;

private Q_SLOTS:
    void followAction(const QDBusMessage &signal);
    void followToken(const QDBusMessage &signal);

private:
    using Answered = std::function<void(const QDBusMessage &answer)>;

    void connectInBackground();
    void begin(const QDBusConnection &bus);
    void call(const QString &method, const QVariantList &arguments, const Answered &answered);
    void askForServer();
    void askForCapabilities();
    void send();
    void take(quint32 identifier);
    void close();

    std::shared_ptr<TaskDispatcher> m_dispatcher;
    Connect m_connect;
    bool m_isConnecting = false;
    std::optional<QDBusConnection> m_bus;
    bool m_raisesWindows = false;      ///< the service does, by the name of the desktop entry
    std::optional<bool> m_takesMarkup; ///< unknown until the service answers
    std::optional<Notice> m_notice;    ///< what the user should see
    quint32 m_identifier = 0;          ///< the service's, of the visible notice; 0: none
    QByteArray m_token;
};

} // namespace Loadwick
