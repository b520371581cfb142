#include "theme/PortalAnswers.h"

#include <algorithm>
#include <array>
#include <cmath>

#include <QDBusArgument>
#include <QDBusVariant>

namespace Loadwick {
namespace {

constexpr auto commonSpace = "org.freedesktop.appearance";
constexpr auto gnomeSpace = "org.gnome.desktop.interface";
constexpr auto gnomeAccessSpace = "org.gnome.desktop.a11y.interface";

constexpr std::array<PortalAnswers::Key, 9> allKeys = {{
    {commonSpace, "color-scheme"},
    {commonSpace, "contrast"},
    {commonSpace, "reduced-motion"},
    {commonSpace, "accent-color"},
    {gnomeSpace, "color-scheme"},
    {gnomeSpace, "enable-animations"},
    {gnomeSpace, "font-name"},
    {gnomeSpace, "text-scaling-factor"},
    {gnomeAccessSpace, "high-contrast"},
}};

/// An answer comes in two wrappings, a change in one.
QVariant unwrapped(QVariant value)
{
    while (value.canConvert<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value;
}

/// 1 asks for it; 0 is no preference, and so is what future portals may say beside it.
std::optional<bool> asked(const QVariant &value)
{
    return value.typeId() == QMetaType::UInt && value.toUInt() == 1 ? std::optional(true)
                                                                    : std::nullopt;
}

std::optional<bool> flag(const QVariant &value)
{
    return value.typeId() == QMetaType::Bool ? std::optional(value.toBool()) : std::nullopt;
}

/// 0 is no preference, 1 dark, 2 light.
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

/// Nobody reads words of no size.
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

/// Red, green and blue of sRGB; parts outside of 0 to 1 mean that none is set.
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

} // namespace

std::span<const PortalAnswers::Key> PortalAnswers::keys()
{
    return allKeys;
}

void PortalAnswers::take(const QString &space, const QString &name, const QVariant &value)
{
    const QVariant plain = unwrapped(value);
    if (space == QLatin1String(commonSpace))
        takeCommon(name, plain);
    else if (space == QLatin1String(gnomeSpace))
        takeGnome(name, plain);
    else if (space == QLatin1String(gnomeAccessSpace) && name == QLatin1String("high-contrast"))
        m_gnome.moreContrast = flag(plain);
}

void PortalAnswers::takeCommon(const QString &name, const QVariant &value)
{
    if (name == QLatin1String("color-scheme"))
        m_common.dark = darkOfNumber(value);
    else if (name == QLatin1String("contrast"))
        m_common.moreContrast = asked(value);
    else if (name == QLatin1String("reduced-motion"))
        m_common.reducedMotion = asked(value);
    else if (name == QLatin1String("accent-color"))
        m_common.accent = accentOfParts(value);
}

void PortalAnswers::takeGnome(const QString &name, const QVariant &value)
{
    if (name == QLatin1String("color-scheme")) {
        m_gnome.dark = darkOfWord(value);
    } else if (name == QLatin1String("enable-animations")) {
        const std::optional<bool> animated = flag(value);
        m_gnome.reducedMotion = animated ? std::optional(!*animated) : std::nullopt;
    } else if (name == QLatin1String("font-name")) {
        m_gnome.fontPoints = pointsOfFont(value);
    } else if (name == QLatin1String("text-scaling-factor")) {
        m_gnome.textFactor = factor(value);
    }
}

} // namespace Loadwick
