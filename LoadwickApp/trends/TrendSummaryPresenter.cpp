#include "trends/TrendSummaryPresenter.h"

#include "probe/CheckedSum.h"
#include "report/NumberText.h"
#include "report/OpinionBand.h"
#include "shell/QtText.h"

namespace Loadwick {

void TrendSummaryPresenter::show(std::span<const LineSample> samples)
{
    m_hasScans = !samples.empty();
    const std::int64_t latest = m_hasScans ? samples.back().total : 0;
    const std::int64_t earliest = m_hasScans ? samples.front().total : 0;
    const OpinionBand band = OpinionBand::band(latest);
    m_latest = qtText(NumberText::grouped(latest, m_locale));
    m_range = qtText(band.range(m_locale));
    m_band = band;
    m_bandTitle = qtText(band.title());
    m_drift = qtText(NumberText::groupedChange(checkedDifference(latest, earliest), m_locale));
    m_driftCaption = tr("%1 recorded scans").arg(samples.size());
    Q_EMIT changed();
}

} // namespace Loadwick
