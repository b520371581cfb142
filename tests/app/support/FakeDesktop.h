#pragma once

#include <QList>
#include <QUrl>

#include "desktop/FileOpener.h"

namespace Loadwick {

/// A desktop without a bus, which records what it should open.
struct FakeDesktop
{
    QList<QUrl> opened = {};
    bool opens = true; ///< whether it has a program for it

    /// Must not outlive this object.
    [[nodiscard]] FileOpener::Desktop asDesktop()
    {
        return {.open =
                    [this](const QUrl &url) {
                        opened.append(url);
                        return opens;
                    },
                .hasProgramFor = [](const QString &) { return true; },
                .connect = [] { return QDBusConnection(QStringLiteral("no such bus")); }};
    }
};

} // namespace Loadwick
