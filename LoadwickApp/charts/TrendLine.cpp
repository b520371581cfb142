#include "charts/TrendLine.h"

#include "base/QtText.h"
#include "text/DateText.h"
#include "text/NumberText.h"

namespace Loadwick {

void TrendLine::setSamples(std::span<const LineSample> samples)
{
    LineGeometry geometry(samples);
    if (geometry.samples() == m_geometry.samples())
        return;
    m_geometry = std::move(geometry);
    Q_EMIT changed();
}

QString TrendLine::date(std::size_t place) const
{
    return qtText(DateText::dayAndTime(m_geometry.samples().at(place).date, m_locale));
}

QString TrendLine::total(std::size_t place) const
{
    return tr("%1 tokens")
        .arg(qtText(NumberText::grouped(m_geometry.samples().at(place).total, m_locale)));
}

} // namespace Loadwick
