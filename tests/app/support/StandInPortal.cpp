#include "support/StandInPortal.h"

namespace Loadwick {
namespace {

constexpr QLatin1String service("org.freedesktop.portal.Desktop");
constexpr QLatin1String path("/org/freedesktop/portal/desktop");

} // namespace

StandInPortal::StandInPortal(QDBusConnection bus) : m_bus(std::move(bus))
{
    if (!m_bus.registerObject(path, this, QDBusConnection::ExportAllSlots) ||
        !m_bus.registerService(service))
        qFatal("The stand-in portal cannot register on the bus.");
}

StandInPortal::~StandInPortal()
{
    m_bus.unregisterService(service);
    m_bus.unregisterObject(path);
}

void StandInPortal::set(const QString &space, const QString &name, const QVariant &value)
{
    m_values.insert_or_assign({space, name}, value);
}

void StandInPortal::change(const QString &space, const QString &name, const QVariant &value)
{
    set(space, name, value);
    QDBusMessage signal = QDBusMessage::createSignal(
        path, QStringLiteral("org.freedesktop.portal.Settings"), QStringLiteral("SettingChanged"));
    signal << space << name << QVariant::fromValue(QDBusVariant(value));
    m_bus.send(signal);
}

QDBusVariant StandInPortal::Read(const QString &space, const QString &name,
                                 const QDBusMessage &question)
{
    ++m_questionCount;
    question.setDelayedReply(m_isSilent || !m_values.contains({space, name}));
    if (!question.isDelayedReply())
        return QDBusVariant(QVariant::fromValue(QDBusVariant(m_values.at({space, name}))));
    if (!m_isSilent)
        m_bus.send(question.createErrorReply(
            QStringLiteral("org.freedesktop.portal.Error.NotFound"), QStringLiteral("No setting")));
    return {};
}

} // namespace Loadwick
