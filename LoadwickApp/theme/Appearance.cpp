#include "theme/Appearance.h"

#include "theme/ColorContrast.h"
#include "theme/DesktopAppearanceSource.h"

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
    return m_source.preferences().accent.has_value();
}

QColor Appearance::accent() const
{
    return m_source.preferences().accent.value_or(QColor());
}

double Appearance::textScale() const
{
    return m_textScale.value_or(m_source.preferences().textScale());
}

QColor Appearance::readable(const QColor &accent, const QList<QColor> &grounds, double tint) const
{
    return readableAccent(accent, grounds, static_cast<float>(tint));
}

template<typename Value>
void Appearance::set(Value &field, const Value &value)
{
    if (field == value)
        return;
    field = value;
    Q_EMIT changed();
}

void Appearance::setTextScale(double scale)
{
    set(m_textScale, std::optional(scale));
}

void Appearance::setScheme(Scheme scheme)
{
    set(m_scheme, scheme);
}

void Appearance::setMotion(Motion motion)
{
    set(m_motion, motion);
}

void Appearance::setContrast(Contrast contrast)
{
    set(m_contrast, contrast);
}

} // namespace Loadwick

#include "moc_Appearance.cpp"
