#include "trends/TrendSummaryPresenter.h"

#include "base/QtText.h"
#include "report/OpinionBand.h"
#include "text/Fatal.h"
#include "text/NumberText.h"

namespace Loadwick {

void TrendSummaryPresenter::show(std::span<const LineSample> samples)
{
    m_hasScans = !samples.empty();
    // The first figure loads the locale's data, which start-up does not need.
    if (m_hasScans)
        word(samples);
    Q_EMIT changed();
}

void TrendSummaryPresenter::word(std::span<const LineSample> samples)
{
    const std::int64_t latest = samples.back().total;
    const OpinionBand band = OpinionBand::band(latest);
    m_latest = qtText(NumberText::grouped(latest, m_locale));
    m_range = qtText(band.range(m_locale));
    m_band = band;
    m_bandTitle = qtText(band.title());
    m_drift = qtText(
        NumberText::groupedChange(checkedDifference(latest, samples.front().total), m_locale));
    m_driftCaption = tr("%1 recorded scans").arg(samples.size());
}

} // namespace Loadwick

#include "moc_TrendSummaryPresenter.cpp"
