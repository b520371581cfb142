#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QStringList>
#include <QVariantMap>

namespace Loadwick {

/// A desktop's notification service that shows nothing and records its calls.
class StandInNotifications : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public:
    struct Note
    {
        QString application, icon, title, body;
        QStringList actions;
        QVariantMap hints;
        uint replaced; ///< 0: nothing
    };

    /// Claims the service's name on the bus.
    explicit StandInNotifications(QDBusConnection bus);
    ~StandInNotifications() override;

    /// Announces a press on the note of that number, with the desktop's token if there is one.
    void press(uint identifier, const QString &token = {});

    QString server = QStringLiteral("stand-in");
    QStringList capabilities = {QStringLiteral("body"), QStringLiteral("body-markup"),
                                QStringLiteral("actions")};
    QList<Note> notes; ///< the first has the number 1
    QList<uint> closed;
    bool holdsBack = false; ///< answers no Notify until `answer`
    void answer();

public Q_SLOTS:
    QString GetServerInformation(QString &vendor, QString &version, QString &protocol);
    QStringList GetCapabilities() { return capabilities; }
    // NOLINTNEXTLINE(readability-function-size): the interface's signature
    uint Notify(const QString &application, uint replaced, const QString &icon,
                const QString &title, const QString &body, const QStringList &actions,
                const QVariantMap &hints, int milliseconds, const QDBusMessage &question);
    void CloseNotification(uint identifier) { closed.append(identifier); }

private:
    void tell(const QString &signal, uint identifier, const QString &text);

    QDBusConnection m_bus;
    QDBusMessage m_heldBack;
};

} // namespace Loadwick
