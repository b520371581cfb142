#pragma once

#include <QDBusConnection>
#include <QProcess>
#include <QString>

#include "samples/TemporaryFolder.h"

namespace Loadwick {

/// A private message bus without services, on which none can be activated. Its clients are
/// connections of the test program, each under its own name.
class PrivateBus
{
public:
    /// Aborts the test program if there is no bus daemon.
    PrivateBus();
    ~PrivateBus();

    PrivateBus(const PrivateBus &) = delete;
    PrivateBus &operator=(const PrivateBus &) = delete;

    [[nodiscard]] QDBusConnection connection(const QString &name);

private:
    TemporaryFolder m_folder;
    QProcess m_daemon;
    QStringList m_names;
};

} // namespace Loadwick
