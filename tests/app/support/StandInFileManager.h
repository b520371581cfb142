#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QStringList>

namespace Loadwick {

/// A desktop's file manager that shows nothing and records its calls.
class StandInFileManager : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.FileManager1")

public:
    /// Claims the service's name on the bus.
    explicit StandInFileManager(QDBusConnection bus);
    ~StandInFileManager() override;

    QStringList shown; ///< URLs

public Q_SLOTS:
    void ShowItems(const QStringList &urls, const QString &) { shown += urls; }

private:
    QDBusConnection m_bus;
};

} // namespace Loadwick
