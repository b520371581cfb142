#include "theme/PortalAppearanceSource.h"

#include <algorithm>
#include <array>
#include <cmath>

#include <QDBusArgument>
#include <QDBusPendingCallWatcher>
#include <QDBusVariant>

#include "base/QtTaskDispatcher.h"

namespace Loadwick {
namespace {

constexpr QLatin1String service("org.freedesktop.portal.Desktop");
constexpr QLatin1String path("/org/freedesktop/portal/desktop");
constexpr QLatin1String interface("org.freedesktop.portal.Settings");

/// A portal started by this very call may take its time at log-in.
constexpr int answerMilliseconds = 25'000;

constexpr auto commonSpace = "org.freedesktop.appearance";
constexpr auto gnomeSpace = "org.gnome.desktop.interface";
constexpr auto gnomeAccessSpace = "org.gnome.desktop.a11y.interface";

/// An answer is wrapped twice, a change once.
QVariant unwrapped(QVariant value)
{
    while (value.canConvert<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value;
}

/// 1 requests it; 0 means no preference, as does any value that future portals may add.
std::optional<bool> asked(const QVariant &value)
{
    return value.typeId() == QMetaType::UInt && value.toUInt() == 1 ? std::optional(true)
                                                                    : std::nullopt;
}

std::optional<bool> flag(const QVariant &value)
{
    return value.typeId() == QMetaType::Bool ? std::optional(value.toBool()) : std::nullopt;
}

std::optional<bool> negated(std::optional<bool> value)
{
    return value ? std::optional(!*value) : std::nullopt;
}

/// 0 means no preference, 1 dark, 2 light.
std::optional<bool> darkOfNumber(const QVariant &value)
{
    const uint scheme = value.typeId() == QMetaType::UInt ? value.toUInt() : 0;
    return scheme == 1 || scheme == 2 ? std::optional(scheme == 1) : std::nullopt;
}

std::optional<bool> darkOfWord(const QVariant &value)
{
    if (value.toString() == QLatin1String("prefer-dark"))
        return true;
    return value.toString() == QLatin1String("prefer-light") ? std::optional(false) : std::nullopt;
}

/// Rejects non-positive sizes.
std::optional<double> positive(double number)
{
    return std::isfinite(number) && number > 0 ? std::optional(number) : std::nullopt;
}

std::optional<double> factor(const QVariant &value)
{
    return value.typeId() == QMetaType::Double ? positive(value.toDouble()) : std::nullopt;
}

/// "Cantarell 11": the points come last.
std::optional<double> pointsOfFont(const QVariant &value)
{
    return positive(value.toString().section(QLatin1Char(' '), -1).toDouble());
}

/// Red, green and blue of sRGB; components outside 0 to 1 mean that none is set.
std::optional<QColor> accentOfParts(const QVariant &value)
{
    if (!value.canConvert<QDBusArgument>())
        return {};
    const auto argument = value.value<QDBusArgument>();
    if (argument.currentSignature() != QLatin1String("(ddd)"))
        return {};
    std::array<double, 3> parts{};
    argument.beginStructure();
    argument >> parts[0] >> parts[1] >> parts[2];
    argument.endStructure();
    if (!std::ranges::all_of(parts, [](double part) { return part >= 0.0 && part <= 1.0; }))
        return {};
    return QColor::fromRgbF(static_cast<float>(parts[0]), static_cast<float>(parts[1]),
                            static_cast<float>(parts[2]));
}

using Preferences = DesktopPreferences;
constexpr std::array<PortalAnswers::Key, 9> allKeys = {{
    {commonSpace, "color-scheme",
     [](Preferences &result, const QVariant &value) { result.dark = darkOfNumber(value); }},
    {commonSpace, "contrast",
     [](Preferences &result, const QVariant &value) { result.moreContrast = asked(value); }},
    {commonSpace, "reduced-motion",
     [](Preferences &result, const QVariant &value) { result.reducedMotion = asked(value); }},
    {commonSpace, "accent-color",
     [](Preferences &result, const QVariant &value) { result.accent = accentOfParts(value); }},
    {gnomeSpace, "color-scheme",
     [](Preferences &result, const QVariant &value) { result.dark = darkOfWord(value); }},
    {gnomeSpace, "enable-animations",
     [](Preferences &result, const QVariant &value) {
         result.reducedMotion = negated(flag(value));
     }},
    {gnomeSpace, "font-name",
     [](Preferences &result, const QVariant &value) { result.fontPoints = pointsOfFont(value); }},
    {gnomeSpace, "text-scaling-factor",
     [](Preferences &result, const QVariant &value) { result.textFactor = factor(value); }},
    {gnomeAccessSpace, "high-contrast",
     [](Preferences &result, const QVariant &value) { result.moreContrast = flag(value); }},
}};

} // namespace

std::span<const PortalAnswers::Key> PortalAnswers::keys()
{
    return allKeys;
}

void PortalAnswers::take(const QString &space, const QString &name, const QVariant &value)
{
    const auto key = std::ranges::find_if(allKeys, [&](const Key &candidate) {
        return space == QLatin1String(candidate.space) && name == QLatin1String(candidate.name);
    });
    if (key != allKeys.end())
        key->read(space == QLatin1String(commonSpace) ? m_common : m_gnome, unwrapped(value));
}

PortalAppearanceSource::PortalAppearanceSource(const std::shared_ptr<TaskDispatcher> &dispatcher,
                                               const Connect &connect, QObject *parent)
    : AppearanceSource(parent)
{
    // Without a thread all preferences remain absent.
    inBackground(this, dispatcher, connect, [this](const QDBusConnection &bus) { begin(bus); });
}

void PortalAppearanceSource::begin(QDBusConnection bus)
{
    if (!bus.isConnected())
        return;
    // Subscribed before the query, so that no change is missed.
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
    const DesktopPreferences before = preferences();
    m_answers.take(space, name, value);
    if (preferences() != before)
        Q_EMIT changed();
}

} // namespace Loadwick

#include "moc_PortalAppearanceSource.cpp"
