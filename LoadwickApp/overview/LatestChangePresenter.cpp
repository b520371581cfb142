#include "overview/LatestChangePresenter.h"

#include <utility>

#include "base/QtText.h"
#include "history/ScanHistory.h"
#include "report/ScanReport.h"
#include "text/DateText.h"
#include "text/Fatal.h"

namespace Loadwick {
namespace {

TrendDirection directionOf(std::int64_t delta)
{
    if (delta == 0)
        return TrendDirection::flat;
    return delta > 0 ? TrendDirection::up : TrendDirection::down;
}

} // namespace

LatestChangePresenter::LatestChangePresenter(ScanModel &model, TextLocale locale)
    : m_model(model), m_locale(std::move(locale))
{
    m_model.history().observe({.didChange = [this] { showHistory(); }});
}

void LatestChangePresenter::show(const ScanReport &report)
{
    m_repository = report.repositoryPath;
    m_total = report.total;
    showHistory();
}

QString LatestChangePresenter::sentence() const
{
    return isKnown() ? tr("%1 tokens %2").arg(title(), since()) : QString();
}

// A report is shown before it is recorded, and remains if that fails.
void LatestChangePresenter::showHistory()
{
    m_mark = {};
    m_since.clear();
    const auto scans = m_repository
                           ? ScanHistory::oldestFirst(m_model.history().get(), *m_repository)
                           : std::vector<const RecordedScan *>();
    if (scans.size() > 1 && scans.back()->total == m_total)
        compareWith(*scans[scans.size() - 2]);
    Q_EMIT changed();
}

void LatestChangePresenter::compareWith(const RecordedScan &previous)
{
    const std::int64_t delta = checkedDifference(m_total, previous.total);
    m_mark = TrendMark::of(directionOf(delta), delta, m_locale);
    m_since = tr("since %1").arg(qtText(dateText(previous.date, DateForm::dayAndTime, m_locale)));
}

} // namespace Loadwick

#include "moc_LatestChangePresenter.cpp"
