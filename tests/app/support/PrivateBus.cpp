#include "support/PrivateBus.h"

namespace Loadwick {
namespace {

constexpr auto configuration = R"(<!DOCTYPE busconfig PUBLIC
 "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <listen>unix:path=%1</listen>
  <auth>EXTERNAL</auth>
  <policy context="default">
    <allow send_destination="*"/>
    <allow receive_sender="*"/>
    <allow own="*"/>
  </policy>
</busconfig>
)";

} // namespace

PrivateBus::PrivateBus()
{
    const QString socket = QString::fromStdString((m_folder.path() / "bus").string());
    const auto file =
        m_folder.write("bus.conf", QString::fromLatin1(configuration).arg(socket).toStdString());
    m_daemon.start(QStringLiteral("dbus-daemon"),
                   {QStringLiteral("--nofork"), QStringLiteral("--print-address"),
                    QStringLiteral("--config-file=") + QString::fromStdString(file.string())});
    // It prints its address once it listens.
    if (!m_daemon.waitForReadyRead(10'000))
        qFatal("No message bus: %s", qPrintable(m_daemon.errorString()));
}

PrivateBus::~PrivateBus()
{
    for (const QString &name : m_names)
        QDBusConnection::disconnectFromBus(name);
    m_daemon.kill();
    m_daemon.waitForFinished();
}

QDBusConnection PrivateBus::connection(const QString &name)
{
    m_names.append(name);
    const QString socket = QString::fromStdString((m_folder.path() / "bus").string());
    return QDBusConnection::connectToBus(QStringLiteral("unix:path=") + socket, name);
}

} // namespace Loadwick
