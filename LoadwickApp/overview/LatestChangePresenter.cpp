#include "overview/LatestChangePresenter.h"

#include <utility>

#include "base/QtText.h"
#include "base/TokenText.h"
#include "history/ScanHistory.h"
#include "report/ScanReport.h"
#include "text/DateText.h"
#include "text/Fatal.h"
#include "text/NumberText.h"

namespace Loadwick {
namespace {

struct LastTwo
{
    const RecordedScan *latest = nullptr;
    const RecordedScan *previous = nullptr;
};

/// Of scans of one second the last in the history is the latest.
LastTwo lastTwoOf(const std::vector<RecordedScan> &history, const std::string &path)
{
    LastTwo last;
    for (const RecordedScan &scan : history) {
        if (scan.repositoryPath != path)
            continue;
        if (last.latest == nullptr || scan.date >= last.latest->date)
            last.previous = std::exchange(last.latest, &scan);
        else if (last.previous == nullptr || scan.date >= last.previous->date)
            last.previous = &scan;
    }
    return last;
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
    return isKnown() ? tr("%1 %2").arg(m_difference, since()) : QString();
}

// A report is shown before it is recorded, and remains if that fails.
void LatestChangePresenter::showHistory()
{
    const LastTwo last =
        m_repository ? lastTwoOf(m_model.history().get(), *m_repository) : LastTwo();
    m_mark = {};
    m_since.clear();
    const bool isRecorded = m_model.isHistoryComplete();
    if (isRecorded && last.previous != nullptr && last.latest->total == m_total) {
        const std::int64_t before = last.previous->total;
        const std::int64_t difference = checkedDifference(m_total, before);
        m_mark = TrendMark::of(trendDirection(before, m_total), difference, m_locale);
        // The sign of the comparison that it leads to: no change is +0.
        m_mark.title = qtText(NumberText::groupedChange(difference, m_locale));
        m_difference = TokenText::change(difference, m_locale);
        m_since = tr("since %1")
                      .arg(qtText(dateText(last.previous->date, DateForm::dayAndTime, m_locale)));
    }
    Q_EMIT changed();
}

} // namespace Loadwick

#include "moc_LatestChangePresenter.cpp"
