#pragma once

#include <functional>
#include <memory>
#include <span>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QString>
#include <QVariant>

#include "model/TaskDispatcher.h"
#include "theme/AppearanceSource.h"

namespace Loadwick {

/// The answers of the desktop's settings portal so far, and their meaning. The keys are those
/// shared by all desktops (XDG Desktop Portal, org.freedesktop.portal.Settings) and, for portals
/// without them, GNOME's own. A shared key takes precedence.
class PortalAnswers
{
public:
    struct Key
    {
        const char *space; ///< the portal calls it a namespace
        const char *name;
        void (*read)(DesktopPreferences &preferences, const QVariant &value);
    };

    /// The keys to read.
    [[nodiscard]] static std::span<const Key> keys();

    /// A value as it comes off the bus. An unknown key, or a value of the wrong type for its key,
    /// is ignored.
    void take(const QString &space, const QString &name, const QVariant &value);

    [[nodiscard]] DesktopPreferences preferences() const { return m_common.orElse(m_gnome); }

private:
    DesktopPreferences m_common;
    DesktopPreferences m_gnome;
};

/// The preferences that the desktop's settings portal knows, updated while the program runs. The
/// bus is connected in the background, since a bus that hangs blocks its callers; answers are
/// asynchronous. Without a bus, a portal or an answer all preferences are absent.
class PortalAppearanceSource : public AppearanceSource
{
    Q_OBJECT

public:
    /// Called off the interface thread.
    using Connect = std::function<QDBusConnection()>;

    explicit PortalAppearanceSource(const std::shared_ptr<TaskDispatcher> &dispatcher,
                                    const Connect &connect = &QDBusConnection::sessionBus,
                                    QObject *parent = nullptr);

    [[nodiscard]] DesktopPreferences preferences() const override
    {
        return m_answers.preferences();
    }

private Q_SLOTS:
    void followChange(const QDBusMessage &signal);

private:
    void begin(QDBusConnection bus);
    void ask(const QDBusConnection &bus, const PortalAnswers::Key &key);
    void take(const QString &space, const QString &name, const QVariant &value);

    PortalAnswers m_answers;
};

} // namespace Loadwick
