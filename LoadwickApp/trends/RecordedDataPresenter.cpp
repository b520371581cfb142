#include "trends/RecordedDataPresenter.h"

#include <algorithm>
#include <set>
#include <string_view>
#include <utility>

#include "base/QtText.h"
#include "base/TokenText.h"
#include "history/ScanHistory.h"
#include "text/DateText.h"
#include "text/NumberText.h"
#include "text/OnLinux.h"
#include "text/PathText.h"

namespace Loadwick {
namespace {

std::size_t repositoryCount(const std::vector<RecordedScan> &history)
{
    std::set<std::string_view> paths;
    for (const RecordedScan &scan : history)
        paths.insert(scan.repositoryPath);
    return paths.size();
}

} // namespace

RecordedDataPresenter::RecordedDataPresenter(ScanModel &model, TextLocale locale)
    : m_model(model), m_locale(std::move(locale)), m_runs(runRoles())
{}

void RecordedDataPresenter::showHistory()
{
    const std::vector<RecordedScan> &history = m_model.history().get();
    std::vector<RecordedScan> newest = ScanHistory::newestFirst(history);
    newest.erase(newest.begin() + static_cast<std::ptrdiff_t>(std::min(newest.size(), mostRuns)),
                 newest.end());
    m_runs.setRows(std::move(newest));
    Q_EMIT changed();
}

QString RecordedDataPresenter::runsDetail() const
{
    const std::size_t scans = m_model.history().get().size();
    if (scans == 0 && !m_model.isHistoryComplete())
        return {};
    return scans <= mostRuns
               ? tr("Every recorded scan, newest first, across every repository.")
               : tr("The newest 30 of %1 recorded scans, across every repository.").arg(scans);
}

std::vector<ListOf<RecordedScan>::Role> RecordedDataPresenter::runRoles() const
{
    using Scan = RecordedScan;
    const auto detail = [this](const Scan &scan) {
        return qtText(dateText(scan.date, DateForm::dayAndTime, m_locale));
    };
    const auto value = [this](const Scan &scan) {
        return qtText(NumberText::grouped(scan.total, m_locale));
    };
    const auto valueCaption = [](const Scan &scan) {
        return scan.categories.empty() ? tr("No category estimates") : QString();
    };
    const auto sentence = [=, this](const Scan &scan) {
        const QString words =
            tr("%1, %2, %3, %4")
                .arg(qtText(scan.repositoryName), detail(scan),
                     TokenText::count(scan.total, m_locale), qtText(scan.band().title()));
        return scan.categories.empty() ? words + QStringLiteral(", ") + valueCaption(scan) : words;
    };
    return {
        {"title", [](const Scan &scan) { return qtText(scan.repositoryName); }},
        {"detail", detail},
        {"value", value},
        {"valueCaption", valueCaption},
        {"band", [](const Scan &scan) { return static_cast<int>(scan.band()); }},
        {"path", [this](const Scan &scan) { return pathOf(scan); }},
        {"sentence", sentence},
    };
}

QString RecordedDataPresenter::pathOf(const RecordedScan &scan) const
{
    const auto isNamesake = [&scan](const RecordedScan &other) {
        return other.repositoryName == scan.repositoryName &&
               other.repositoryPath != scan.repositoryPath;
    };
    return std::ranges::any_of(m_runs.rows(), isNamesake) ? qtText(scan.repositoryPath) : QString();
}

QString RecordedDataPresenter::storageNote() const
{
    if (!m_model.isHistoryComplete())
        return {};
    const std::vector<RecordedScan> &history = m_model.history().get();
    const std::size_t scans = history.size();
    const std::size_t repositories = repositoryCount(history);
    return tr("%1 across %2, stored on this Mac. Totals only — no instruction-file contents are "
              "ever written. The newest %3 are kept.")
        .arg((scans == 1 ? tr("%1 scan") : tr("%1 scans")).arg(scans),
             (repositories == 1 ? tr("%1 repository") : tr("%1 repositories")).arg(repositories),
             qtText(NumberText::grouped(std::int64_t{ScanHistoryStore::maximumScans}, m_locale)));
}

QString RecordedDataPresenter::storagePlatformNote() const
{
    const auto note = m_model.historyFile() ? onLinux("On Linux the file is:") : std::nullopt;
    return qtText(note.value_or(""));
}

QString RecordedDataPresenter::historyFile() const
{
    const auto file = m_model.historyFile();
    return file ? qtText(pathText(*file)) : QString();
}

bool RecordedDataPresenter::canClear() const
{
    return m_model.isHistoryComplete() && m_model.canClearHistory();
}

QString RecordedDataPresenter::deleteTitle() const
{
    const std::size_t scans = m_model.history().get().size();
    return (scans == 1 ? tr("Delete %1 Recorded Scan") : tr("Delete %1 Recorded Scans")).arg(scans);
}

void RecordedDataPresenter::clear()
{
    m_model.clearHistory();
}

} // namespace Loadwick

#include "moc_RecordedDataPresenter.cpp"
