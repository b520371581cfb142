#include "support/StandInNotifications.h"

#include <utility>

namespace Loadwick {
namespace {

constexpr QLatin1String service("org.freedesktop.Notifications");
constexpr QLatin1String path("/org/freedesktop/Notifications");

} // namespace

StandInNotifications::StandInNotifications(QDBusConnection bus) : m_bus(std::move(bus))
{
    if (!m_bus.registerObject(path, this, QDBusConnection::ExportAllSlots) ||
        !m_bus.registerService(service))
        qFatal("The stand-in for notifications cannot register on the bus.");
}

StandInNotifications::~StandInNotifications()
{
    m_bus.unregisterService(service);
    m_bus.unregisterObject(path);
}

void StandInNotifications::press(uint identifier, const QString &token)
{
    if (!token.isEmpty())
        tell(QStringLiteral("ActivationToken"), identifier, token);
    tell(QStringLiteral("ActionInvoked"), identifier, QStringLiteral("default"));
}

QString StandInNotifications::GetServerInformation(QString &vendor, QString &version,
                                                   QString &protocol)
{
    vendor = QStringLiteral("none");
    version = QStringLiteral("1");
    protocol = QStringLiteral("1.2");
    return server;
}

uint StandInNotifications::Notify(const QString &application, uint replaced, const QString &icon,
                                  const QString &title, const QString &body,
                                  const QStringList &actions, const QVariantMap &hints, int,
                                  const QDBusMessage &question)
{
    notes.append({.application = application,
                  .icon = icon,
                  .title = title,
                  .body = body,
                  .actions = actions,
                  .hints = hints,
                  .replaced = replaced});
    question.setDelayedReply(holdsBack);
    m_heldBack = question;
    return static_cast<uint>(notes.size());
}

void StandInNotifications::answer()
{
    m_bus.send(m_heldBack.createReply(static_cast<uint>(notes.size())));
}

void StandInNotifications::tell(const QString &signal, uint identifier, const QString &text)
{
    QDBusMessage message = QDBusMessage::createSignal(path, service, signal);
    message << identifier << text;
    m_bus.send(message);
}

} // namespace Loadwick
