#include "desktop/DesktopNoticeBoard.h"

#include <utility>

#include <QDBusPendingCallWatcher>
#include <QGuiApplication>
#include <QVariantMap>

#include "base/QtTaskDispatcher.h"

namespace Loadwick {
namespace {

constexpr QLatin1String service("org.freedesktop.Notifications");
constexpr QLatin1String objectPath("/org/freedesktop/Notifications");
constexpr QLatin1String interface("org.freedesktop.Notifications");
constexpr QLatin1String defaultAction("default"); ///< invoked by a press on the notice itself

constexpr int answerMilliseconds = 25'000;
constexpr int serviceDecides = -1; ///< its duration

QVariantMap hints()
{
    return {{QStringLiteral("desktop-entry"), QGuiApplication::desktopFileName()},
            {QStringLiteral("category"), QStringLiteral("transfer.complete")}};
}

} // namespace

DesktopNoticeBoard::DesktopNoticeBoard(std::shared_ptr<TaskDispatcher> dispatcher, Connect connect,
                                       QObject *parent)
    : NoticeBoard(parent), m_dispatcher(std::move(dispatcher)), m_connect(std::move(connect))
{}

void DesktopNoticeBoard::show(const Notice &notice)
{
    m_notice = notice;
    if (m_takesMarkup)
        send();
    else if (!m_isConnecting)
        connectInBackground();
}

void DesktopNoticeBoard::withdraw()
{
    m_notice.reset();
    close();
}

void DesktopNoticeBoard::connectInBackground()
{
    // Without a thread the next notice retries.
    m_isConnecting = inBackground(this, m_dispatcher, m_connect,
                                  [this](const QDBusConnection &bus) { begin(bus); });
}

void DesktopNoticeBoard::begin(const QDBusConnection &bus)
{
    m_isConnecting = false;
    if (!bus.isConnected())
        return;
    if (!std::exchange(m_bus, bus)) {
        m_bus->connect(service, objectPath, interface, QStringLiteral("ActionInvoked"), this,
                       SLOT(followAction(QDBusMessage)));
        m_bus->connect(service, objectPath, interface, QStringLiteral("ActivationToken"), this,
                       SLOT(followToken(QDBusMessage)));
    }
    // Answers come in the order of the questions, and the last one sends the notice.
    askForServer();
    askForCapabilities();
}

void DesktopNoticeBoard::call(const QString &method, const QVariantList &arguments,
                              const Answered &answered)
{
    QDBusMessage question = QDBusMessage::createMethodCall(service, objectPath, interface, method);
    question.setArguments(arguments);
    auto *watcher =
        new QDBusPendingCallWatcher(m_bus->asyncCall(question, answerMilliseconds), this);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, this, [watcher, answered] {
        watcher->deleteLater();
        const QDBusMessage answer = watcher->reply();
        if (answer.type() == QDBusMessage::ReplyMessage && !answer.arguments().isEmpty())
            answered(answer);
    });
}

// GNOME Shell gives no token to raise the window with, but raises it itself if there is no action.
void DesktopNoticeBoard::askForServer()
{
    call(QStringLiteral("GetServerInformation"), {}, [this](const QDBusMessage &answer) {
        m_raisesWindows = answer.arguments().constFirst() == QLatin1String("gnome-shell");
    });
}

void DesktopNoticeBoard::askForCapabilities()
{
    call(QStringLiteral("GetCapabilities"), {}, [this](const QDBusMessage &answer) {
        const QStringList capabilities = answer.arguments().constFirst().toStringList();
        m_takesMarkup = capabilities.contains(QStringLiteral("body-markup"));
        send();
    });
}

void DesktopNoticeBoard::send()
{
    if (!m_notice)
        return;
    const QString body = *m_takesMarkup ? m_notice->body.toHtmlEscaped() : m_notice->body;
    const QVariantList arguments = {
        QGuiApplication::applicationDisplayName(),
        m_identifier,
        QGuiApplication::desktopFileName(), // the icon has the same name
        m_notice->title,
        body,
        m_raisesWindows ? QStringList() : QStringList{defaultAction, tr("Show")},
        hints(),
        serviceDecides,
    };
    call(QStringLiteral("Notify"), arguments,
         [this](const QDBusMessage &answer) { take(answer.arguments().constFirst().toUInt()); });
}

void DesktopNoticeBoard::take(quint32 identifier)
{
    m_identifier = identifier;
    if (!m_notice) // withdrawn while pending
        close();
}

void DesktopNoticeBoard::close()
{
    if (m_bus && m_identifier != 0)
        call(QStringLiteral("CloseNotification"), {std::exchange(m_identifier, 0)},
             [](const QDBusMessage &) {});
}

void DesktopNoticeBoard::followToken(const QDBusMessage &signal)
{
    const QVariantList arguments = signal.arguments();
    if (arguments.size() == 2 && arguments[0].toUInt() == m_identifier)
        m_token = arguments[1].toString().toUtf8();
}

void DesktopNoticeBoard::followAction(const QDBusMessage &signal)
{
    const QVariantList arguments = signal.arguments();
    if (m_identifier != 0 && arguments.size() == 2 && arguments[0].toUInt() == m_identifier)
        Q_EMIT pressed(std::exchange(m_token, {}));
}

} // namespace Loadwick

#include "moc_DesktopNoticeBoard.cpp"
