#include "shell/RecentRepositories.h"

#include <set>
#include <string>
#include <utility>

#include "base/FolderUrl.h"
#include "base/QtTaskDispatcher.h"
#include "base/QtText.h"
#include "base/TokenText.h"
#include "history/ScanHistory.h"
#include "report/OpinionBand.h"
#include "text/NumberText.h"

namespace Loadwick {
namespace {

using Row = RecentRepositories::Row;

std::vector<Row> recentRows(std::span<const RecordedScan> history)
{
    std::vector<Row> rows;
    std::set<std::string> listed;
    for (const RecordedScan &scan : ScanHistory::newestFirst(history))
        if (listed.insert(scan.repositoryPath).second)
            rows.push_back({.title = qtText(scan.repositoryName),
                            .path = shownPath(scan.repositoryPath),
                            .folder = scan.repositoryPath,
                            .total = scan.total});
    return rows;
}

QString detailOf(const Row &row)
{
    const bool isGone = !row.exists.value_or(true);
    return isGone ? RecentRepositories::tr("Folder not found: %1").arg(row.path) : row.path;
}

} // namespace

RecentRepositories::RecentRepositories(ScanModel &model, ContentPresenter &content,
                                       std::shared_ptr<TaskDispatcher> dispatcher,
                                       TextLocale locale)
    : m_model(model),
      m_content(content),
      m_dispatcher(std::move(dispatcher)),
      m_locale(std::move(locale)),
      m_rows(roles())
{
    m_model.history().observe({.didChange = [this] { showHistory(); }});
    m_model.selection().observe({.didChange = [this] { showSelection(); }});
    showHistory();
}

std::vector<ListOf<Row>::Role> RecentRepositories::roles() const
{
    const auto bandOf = [](const Row &row) { return OpinionBand::band(row.total); };
    return {{"title", [](const Row &row) { return row.title; }},
            {"detail", detailOf},
            {"figure", [this](const Row &row) { return grouped(row.total); }},
            {"band", [bandOf](const Row &row) { return static_cast<int>(bandOf(row)); }},
            {"exists", [](const Row &row) { return row.exists.value_or(false); }},
            {"isCurrent", [](const Row &row) { return row.isCurrent; }},
            {"words", [this, bandOf](const Row &row) {
                 return tr("%1, %2, %3")
                     .arg(row.title, TokenText::count(row.total, m_locale),
                          qtText(bandOf(row).title()));
             }}};
}

QString RecentRepositories::grouped(std::int64_t number) const
{
    return qtText(NumberText::grouped(number, m_locale));
}

QString RecentRepositories::matchWords() const
{
    if (!m_filter.isEmpty())
        return tr("%1 of %2 repositories").arg(grouped(m_rows.count()), grouped(count()));
    return (count() == 1 ? tr("%1 repository") : tr("%1 repositories")).arg(grouped(count()));
}

void RecentRepositories::setFilter(const QString &filter)
{
    if (filter.trimmed() == m_filter)
        return;
    m_filter = filter.trimmed();
    m_rows.setRows(matches());
    Q_EMIT filterChanged();
}

std::vector<Row> RecentRepositories::matches() const
{
    std::vector<Row> rows;
    for (const Row &row : m_all)
        if (row.title.contains(m_filter, Qt::CaseInsensitive) ||
            qtText(row.folder.native()).contains(m_filter, Qt::CaseInsensitive))
            rows.push_back(row);
    return rows;
}

void RecentRepositories::showHistory()
{
    m_all = recentRows(m_model.history().get());
    m_rows.setRows(matches());
    showSelection();
    Q_EMIT changed();
}

void RecentRepositories::showSelection()
{
    const auto &selection = m_model.selection().get();
    for (Row &row : m_all)
        row.isCurrent = selection && row.folder == std::filesystem::path(selection->path());
    m_rows.updateRows(matches());
}

void RecentRepositories::checkFolders()
{
    // One thread each, so that a hanging disk delays no other.
    for (const Row &row : m_all)
        if (m_pending.insert(row.folder).second)
            check(row.folder);
}

void RecentRepositories::check(const std::filesystem::path &folder)
{
    // Without a thread the folder stays disabled; the dialog remains.
    const bool isStarted = inBackground(
        this, m_dispatcher, [folder] { return isFolder(folder); },
        [this, folder](bool exists) { setExists(folder, exists); });
    if (!isStarted)
        m_pending.erase(folder);
}

void RecentRepositories::setExists(const std::filesystem::path &folder, bool exists)
{
    m_pending.erase(folder);
    for (Row &row : m_all)
        if (row.folder == folder)
            row.exists = exists;
    for (std::size_t index = 0; index < m_rows.rows().size(); ++index) {
        Row row = m_rows.rows()[index];
        row.exists = exists;
        if (row.folder == folder)
            m_rows.updateRow(index, std::move(row));
    }
}

int RecentRepositories::usableFrom(int row, int step) const
{
    for (int index = row; index >= 0 && index < m_rows.count(); index += step)
        if (m_rows.rows()[static_cast<std::size_t>(index)].exists.value_or(false))
            return index;
    return -1;
}

void RecentRepositories::choose(int row)
{
    if (row < 0 || row >= m_rows.count())
        return;
    const Row chosen = m_rows.rows()[static_cast<std::size_t>(row)];
    if (!chosen.exists.value_or(false))
        return;
    if (chosen.isCurrent)
        m_content.setPageIndex(AppPage::overview);
    else
        m_content.choose(chosen.folder);
}

} // namespace Loadwick

#include "moc_RecentRepositories.cpp"
