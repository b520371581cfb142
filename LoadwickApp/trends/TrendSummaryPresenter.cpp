#include "trends/TrendSummaryPresenter.h"

#include "base/QtText.h"
#include "text/Fatal.h"
#include "text/NumberText.h"

namespace Loadwick {

void TrendSummaryPresenter::show(std::span<const LineSample> samples)
{
    m_count = samples.size();
    if (m_count > 0) {
        m_latest = samples.back().total;
        m_drift = checkedDifference(m_latest, samples.front().total);
    }
    Q_EMIT changed();
}

QString TrendSummaryPresenter::latest() const
{
    return qtText(NumberText::grouped(m_latest, m_locale));
}

QString TrendSummaryPresenter::range() const
{
    return qtText(OpinionBand::band(m_latest).range(m_locale));
}

QString TrendSummaryPresenter::bandTitle() const
{
    return qtText(OpinionBand::band(m_latest).title());
}

QString TrendSummaryPresenter::drift() const
{
    return qtText(NumberText::groupedChange(m_drift, m_locale));
}

QString TrendSummaryPresenter::driftCaption() const
{
    return tr("%1 recorded scans").arg(m_count);
}

} // namespace Loadwick

#include "moc_TrendSummaryPresenter.cpp"
