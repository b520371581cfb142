#pragma once

#include <QDBusConnection>
#include <QProcess>
#include <QString>

#include "samples/TemporaryFolder.h"

namespace Loadwick {

/// A message bus of the test's own, with nobody on it and nobody who could be started. Its programs
/// are connections of the test program, each by a name of its own.
class PrivateBus
{
public:
    /// Ends the test program when there is no bus daemon.
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
