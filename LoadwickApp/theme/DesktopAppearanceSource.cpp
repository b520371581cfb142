#include "theme/DesktopAppearanceSource.h"

#include <utility>

#include <QEvent>
#include <QGuiApplication>

#include "theme/ApplicationLook.h"
#include "theme/KdeAppearanceSource.h"

namespace Loadwick {
namespace {

bool isDesktopDark()
{
    return ApplicationLook::desktopGround().lightness() < 128;
}

} // namespace

PaletteAppearanceSource::PaletteAppearanceSource(QObject *parent)
    : AppearanceSource(parent), m_isDark(isDesktopDark())
{
    qGuiApp->installEventFilter(this);
}

bool PaletteAppearanceSource::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == qGuiApp && event->type() == QEvent::ApplicationPaletteChange) {
        const bool wasDark = std::exchange(m_isDark, isDesktopDark());
        if (wasDark != m_isDark)
            Q_EMIT changed();
    }
    return AppearanceSource::eventFilter(watched, event);
}

DesktopAppearanceSource::DesktopAppearanceSource(Sources sources, QObject *parent)
    : AppearanceSource(parent), m_sources(std::move(sources))
{
    for (const auto &source : m_sources)
        connect(source.get(), &AppearanceSource::changed, this, &DesktopAppearanceSource::ask);
    ask();
}

std::unique_ptr<AppearanceSource>
DesktopAppearanceSource::ofUser(const std::shared_ptr<TaskDispatcher> &dispatcher,
                                const PortalAppearanceSource::Connect &connect)
{
    Sources sources;
    sources.push_back(std::make_unique<PortalAppearanceSource>(dispatcher, connect));
    sources.push_back(
        std::make_unique<KdeAppearanceSource>(KdeAppearanceSource::userFile(), dispatcher));
    if (KdeAppearanceSource::isDesktopKde())
        std::swap(sources[0], sources[1]);
    sources.push_back(std::make_unique<PaletteAppearanceSource>());
    return std::make_unique<DesktopAppearanceSource>(std::move(sources));
}

void DesktopAppearanceSource::ask()
{
    DesktopPreferences preferences;
    for (const auto &source : m_sources)
        preferences = preferences.orElse(source->preferences());
    if (std::exchange(m_preferences, preferences) != preferences)
        Q_EMIT changed();
}

} // namespace Loadwick

#include "moc_DesktopAppearanceSource.cpp"
