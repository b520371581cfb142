#include "theme/Appearance.h"

#include "theme/AppearanceSource.h"
#include "theme/PaletteAppearanceSource.h"
#include "theme/ReadableAccent.h"

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

bool Appearance::moreContrast() const
{
    return m_contrast == DesktopContrast ? m_source.prefersMoreContrast() : m_contrast == More;
}

bool Appearance::hasAccent() const
{
    return m_source.wishes().accent.has_value();
}

QColor Appearance::accent() const
{
    return m_source.wishes().accent.value_or(QColor());
}

double Appearance::textScale() const
{
    return m_textScale.value_or(m_source.wishes().textScale());
}

void Appearance::setTextScale(double scale)
{
    if (m_textScale == scale)
        return;
    m_textScale = scale;
    Q_EMIT changed();
}

QColor Appearance::readable(const QColor &accent, const QList<QColor> &grounds, double tint) const
{
    return readableAccent(accent, grounds, static_cast<float>(tint));
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

void Appearance::setContrast(Contrast contrast)
{
    if (m_contrast == contrast)
        return;
    m_contrast = contrast;
    Q_EMIT changed();
}

} // namespace Loadwick
