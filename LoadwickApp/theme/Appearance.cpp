#include "theme/Appearance.h"

#include "theme/AppearanceSource.h"
#include "theme/PaletteAppearanceSource.h"

#include <QQmlEngine>

namespace Loadwick {

Appearance::Appearance(AppearanceSource &source, QObject *parent)
    : QObject(parent), m_source(source)
{
    connect(&source, &AppearanceSource::changed, this, &Appearance::changed);
}

Appearance *Appearance::create(QQmlEngine *engine, QJSEngine *)
{
    auto *source = engine->findChild<AppearanceSource *>(QString(), Qt::FindDirectChildrenOnly);
    if (source == nullptr)
        source = new PaletteAppearanceSource(engine);
    return new Appearance(*source);
}

bool Appearance::dark() const
{
    return m_scheme == DesktopScheme ? m_source.prefersDark() : m_scheme == Dark;
}

bool Appearance::reduceMotion() const
{
    return m_motion == DesktopMotion ? m_source.prefersReducedMotion() : m_motion == Reduced;
}

void Appearance::setScheme(Scheme scheme)
{
    if (m_scheme == scheme)
        return;
    m_scheme = scheme;
    Q_EMIT changed();
}

void Appearance::setMotion(Motion motion)
{
    if (m_motion == motion)
        return;
    m_motion = motion;
    Q_EMIT changed();
}

} // namespace Loadwick
