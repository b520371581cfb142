#pragma once

#include <map>
#include <utility>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QObject>
#include <QVariant>

namespace Loadwick {

/// A desktop's settings portal whose settings a test chooses; it wraps its answers twice, as the
/// real one does.
class StandInPortal : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    /// Claims the portal's name on the bus.
    explicit StandInPortal(QDBusConnection bus);
    ~StandInPortal() override;

    void set(const QString &space, const QString &name, const QVariant &value);
    /// Changes the setting and announces it.
    void change(const QString &space, const QString &name, const QVariant &value);
    void stopAnswering() { m_isSilent = true; }
    [[nodiscard]] int questionCount() const { return m_questionCount; }

public Q_SLOTS:
    QDBusVariant Read(const QString &space, const QString &name, const QDBusMessage &question);

private:
    QDBusConnection m_bus;
    std::map<std::pair<QString, QString>, QVariant> m_values;
    int m_questionCount = 0;
    bool m_isSilent = false;
};

} // namespace Loadwick
