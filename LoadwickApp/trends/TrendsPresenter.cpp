#include "trends/TrendsPresenter.h"

#include <utility>

#include "base/QtText.h"
#include "history/ScanHistory.h"
#include "history/ScanTables.h"

namespace Loadwick {
namespace {

QString pageDetail(const QString &repositoryName)
{
    if (repositoryName.isEmpty())
        return TrendsPresenter::tr(
            "Startup context over time, against the Lean, Heavy and Excessive bands.");
    return TrendsPresenter::tr(
               "%1: startup context over time, against the Lean, Heavy and Excessive bands.")
        .arg(repositoryName);
}

} // namespace

TrendsPresenter::TrendsPresenter(ScanModel &model, const TextLocale &locale)
    : m_model(model),
      m_chart(locale),
      m_summary(locale),
      m_changes(model, locale),
      m_recordedData(model, locale)
{
    m_model.selection().observe({.didChange = [this] { showRepository(); }});
    m_model.history().observe({.didChange = [this] { showHistory(); }});
    showHistory();
}

std::optional<std::string> TrendsPresenter::shownRepository() const
{
    const auto &selection = m_model.selection().get();
    return selection ? selection->path()
                     : ScanHistory::mostRecentRepositoryPath(m_model.history().get());
}

std::vector<RecordedScan> TrendsPresenter::shownScans() const
{
    const auto path = shownRepository();
    return path ? ScanHistory::scans(m_model.history().get(), *path) : std::vector<RecordedScan>();
}

std::function<QByteArray()> TrendsPresenter::table() const
{
    return [scans = shownScans()] { return QByteArray::fromStdString(ScanTables::totals(scans)); };
}

void TrendsPresenter::showRepository()
{
    const std::vector<RecordedScan> scans = shownScans();
    m_repositoryName = scans.empty() ? QString() : qtText(scans.back().repositoryName);
    m_detail = pageDetail(m_repositoryName);
    showChart(scans);
    m_summary.show(m_chart.line()->geometry().samples());
    m_changes.show(shownRepository());
    Q_EMIT changed();
    auto repository = shownRepository();
    if (repository == m_repository)
        return;
    m_repository = std::move(repository);
    if (m_repository)
        Q_EMIT repositoryChanged();
}

void TrendsPresenter::showChart(std::span<const RecordedScan> scans)
{
    if (!m_model.history().get().empty())
        m_chart.show(scans);
    else if (m_model.isHistoryComplete())
        m_chart.showNoHistory();
    else
        m_chart.showReading();
}

void TrendsPresenter::showHistory()
{
    showRepository();
    m_recordedData.showHistory();
}

} // namespace Loadwick

#include "moc_TrendsPresenter.cpp"
