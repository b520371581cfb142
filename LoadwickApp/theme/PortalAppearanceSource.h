#pragma once

#include <functional>
#include <memory>

#include <QDBusConnection>
#include <QDBusMessage>

#include "model/TaskDispatcher.h"
#include "theme/AppearanceSource.h"
#include "theme/PortalAnswers.h"

namespace Loadwick {

/// The wishes that the desktop's settings portal knows, and their changes while the program runs.
/// The bus is connected in the background, for a bus that hangs would hang who connects; questions
/// are not waited for. Without a bus, a portal or an answer all wishes are absent.
class PortalAppearanceSource : public AppearanceSource
{
    Q_OBJECT

public:
    /// Called away from the interface thread.
    using Connect = std::function<QDBusConnection()>;

    explicit PortalAppearanceSource(const std::shared_ptr<TaskDispatcher> &dispatcher,
                                    const Connect &connect = &QDBusConnection::sessionBus,
                                    QObject *parent = nullptr);

    [[nodiscard]] DesktopWishes wishes() const override { return m_answers.wishes(); }

private Q_SLOTS:
    void followChange(const QDBusMessage &signal);

private:
    void begin(QDBusConnection bus);
    void ask(const QDBusConnection &bus, const PortalAnswers::Key &key);
    void take(const QString &space, const QString &name, const QVariant &value);

    PortalAnswers m_answers;
};

} // namespace Loadwick
