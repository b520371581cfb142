#pragma once

#include <memory>
#include <vector>

#include "model/TaskDispatcher.h"
#include "theme/AppearanceSource.h"
#include "theme/PortalAppearanceSource.h"

namespace Loadwick {

/// Derives dark or light from the desktop's palette: a window darker than middle grey is dark.
/// A palette says nothing about motion or contrast.
class PaletteAppearanceSource : public AppearanceSource
{
    Q_OBJECT

public:
    explicit PaletteAppearanceSource(QObject *parent = nullptr);

    [[nodiscard]] DesktopPreferences preferences() const override { return {.dark = m_isDark}; }
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool m_isDark;
};

/// Combines several sources: each preference comes from the first source that has it.
class DesktopAppearanceSource : public AppearanceSource
{
    Q_OBJECT

public:
    using Sources = std::vector<std::unique_ptr<AppearanceSource>>;

    explicit DesktopAppearanceSource(Sources sources, QObject *parent = nullptr);

    /// The desktop that the program runs on: its portal, what KDE keeps in a file, then the
    /// palette. KDE's file comes first on KDE, where a portal of GTK may run too. Background work
    /// goes through the dispatcher.
    [[nodiscard]] static std::unique_ptr<AppearanceSource>
    ofUser(const std::shared_ptr<TaskDispatcher> &dispatcher,
           const PortalAppearanceSource::Connect &connect = &QDBusConnection::sessionBus);

    [[nodiscard]] DesktopPreferences preferences() const override { return m_preferences; }

private:
    void ask();

    Sources m_sources;
    DesktopPreferences m_preferences;
};

} // namespace Loadwick
