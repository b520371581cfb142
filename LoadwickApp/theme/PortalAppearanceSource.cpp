#include "theme/PortalAppearanceSource.h"

#include <QDBusPendingCallWatcher>

#include "base/QtTaskDispatcher.h"

namespace Loadwick {
namespace {

constexpr QLatin1String service("org.freedesktop.portal.Desktop");
constexpr QLatin1String path("/org/freedesktop/portal/desktop");
constexpr QLatin1String interface("org.freedesktop.portal.Settings");

/// A portal that the question itself has to start may take its time at log-in.
constexpr int answerMilliseconds = 25'000;

} // namespace

PortalAppearanceSource::PortalAppearanceSource(const std::shared_ptr<TaskDispatcher> &dispatcher,
                                               const Connect &connect, QObject *parent)
    : AppearanceSource(parent)
{
    // Without a thread all wishes remain absent.
    inBackground(this, dispatcher, connect, [this](const QDBusConnection &bus) { begin(bus); });
}

void PortalAppearanceSource::begin(QDBusConnection bus)
{
    if (!bus.isConnected())
        return;
    // Followed before it is asked, so that no change falls in between.
    bus.connect(service, path, interface, QStringLiteral("SettingChanged"), this,
                SLOT(followChange(QDBusMessage)));
    for (const PortalAnswers::Key &key : PortalAnswers::keys())
        ask(bus, key);
}

void PortalAppearanceSource::ask(const QDBusConnection &bus, const PortalAnswers::Key &key)
{
    const QString space = QString::fromLatin1(key.space);
    const QString name = QString::fromLatin1(key.name);
    QDBusMessage question =
        QDBusMessage::createMethodCall(service, path, interface, QStringLiteral("Read"));
    question << space << name;
    auto *watcher = new QDBusPendingCallWatcher(bus.asyncCall(question, answerMilliseconds), this);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, this,
                     [this, watcher, space, name] {
                         watcher->deleteLater();
                         const QDBusMessage answer = watcher->reply();
                         if (answer.type() == QDBusMessage::ReplyMessage)
                             take(space, name, answer.arguments().value(0));
                     });
}

void PortalAppearanceSource::followChange(const QDBusMessage &signal)
{
    const QVariantList arguments = signal.arguments();
    if (arguments.size() == 3)
        take(arguments[0].toString(), arguments[1].toString(), arguments[2]);
}

void PortalAppearanceSource::take(const QString &space, const QString &name, const QVariant &value)
{
    const DesktopWishes before = wishes();
    m_answers.take(space, name, value);
    if (wishes() != before)
        Q_EMIT changed();
}

} // namespace Loadwick
