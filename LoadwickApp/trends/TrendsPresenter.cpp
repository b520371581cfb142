#include "trends/TrendsPresenter.h"

#include <utility>

#include "history/ScanHistory.h"
#include "report/DateText.h"
#include "report/NumberText.h"
#include "shell/QtText.h"

namespace Loadwick {
namespace {

QString pageDetail(const QString &repositoryName)
{
    if (repositoryName.isEmpty())
        return QStringLiteral(
            "Startup context over time, against the Lean, Heavy and Excessive bands.");
    return repositoryName + QStringLiteral(": startup context over time, against the Lean, Heavy "
                                           "and Excessive bands.");
}

} // namespace

TrendsPresenter::TrendsPresenter(ScanModel &model, TextLocale locale)
    : m_model(model), m_locale(std::move(locale))
{
    m_model.selection().observe({.didChange = [this] { showHistory(); }});
    m_model.history().observe({.didChange = [this] { showHistory(); }});
    showHistory();
}

std::vector<RecordedScan> TrendsPresenter::shownScans() const
{
    const std::vector<RecordedScan> &history = m_model.history().get();
    const auto &selection = m_model.selection().get();
    const auto path =
        selection ? selection->path() : ScanHistory::mostRecentRepositoryPath(history);
    return path ? ScanHistory::scans(history, *path) : std::vector<RecordedScan>();
}

void TrendsPresenter::showHistory()
{
    const std::vector<RecordedScan> scans = shownScans();
    m_detail = pageDetail(scans.empty() ? QString() : qtText(scans.back().repositoryName));
    m_emptyTitle.clear();
    m_emptyText.clear();
    if (m_model.history().get().empty())
        m_emptyText = QStringLiteral("Scans are recorded locally as you run them. Run one scan, "
                                     "then another, and the trend appears here.");
    else if (scans.empty())
        m_emptyText = QStringLiteral("Nothing recorded for this repository yet. Scan it twice and "
                                     "its trend appears here.");
    else if (scans.size() == 1)
        showOneScan(scans.front());
    Q_EMIT changed();
}

void TrendsPresenter::showOneScan(const RecordedScan &scan)
{
    const QString name = scan.repositoryName.empty() ? QStringLiteral("this repository")
                                                     : qtText(scan.repositoryName);
    m_emptyTitle = QStringLiteral("One scan recorded");
    m_emptyText = QStringLiteral("The one on record measured ") +
                  qtText(NumberText::grouped(scan.total, m_locale)) +
                  QStringLiteral(" tokens on ") + qtText(DateText::day(scan.date, m_locale)) +
                  QStringLiteral(". A trend needs at least two scans of ") + name +
                  QStringLiteral(". Scan again to plot a line.");
}

} // namespace Loadwick
