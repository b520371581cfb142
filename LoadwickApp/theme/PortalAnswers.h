#pragma once

#include <span>

#include <QString>
#include <QVariant>

#include "theme/DesktopWishes.h"

namespace Loadwick {

/// What the desktop's settings portal has answered so far, and what that means. The keys are those
/// of every desktop (XDG Desktop Portal, org.freedesktop.portal.Settings) and, for portals that do
/// not know them yet, those that GNOME keeps. A key of every desktop comes first where both speak.
class PortalAnswers
{
public:
    struct Key
    {
        const char *space; ///< the portal calls it a namespace
        const char *name;
    };

    /// What to ask for.
    [[nodiscard]] static std::span<const Key> keys();

    /// A value as it comes off the bus. What is none of the keys, or not of the key's type, says
    /// nothing.
    void take(const QString &space, const QString &name, const QVariant &value);

    [[nodiscard]] DesktopWishes wishes() const { return m_common.orElse(m_gnome); }

private:
    void takeCommon(const QString &name, const QVariant &value);
    void takeGnome(const QString &name, const QVariant &value);

    DesktopWishes m_common;
    DesktopWishes m_gnome;
};

} // namespace Loadwick
