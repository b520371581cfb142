#include "shell/RecentRepositories.h"

#include <set>
#include <string>
#include <utility>

#include "base/FolderUrl.h"
#include "base/QtTaskDispatcher.h"
#include "base/QtText.h"
#include "history/ScanHistory.h"

namespace Loadwick {
namespace {

using Row = RecentRepositories::Row;

std::vector<Row> recentRows(std::span<const RecordedScan> history)
{
    std::vector<Row> rows;
    std::set<std::string> listed;
    for (const RecordedScan &scan : ScanHistory::newestFirst(history)) {
        if (rows.size() == RecentRepositories::longestList)
            break;
        if (listed.insert(scan.repositoryPath).second)
            rows.push_back({.title = qtText(scan.repositoryName),
                            .path = shownPath(scan.repositoryPath),
                            .folder = scan.repositoryPath});
    }
    return rows;
}

QString detailOf(const Row &row)
{
    const bool isGone = !row.exists.value_or(true);
    return isGone ? RecentRepositories::tr("Folder not found: %1").arg(row.path) : row.path;
}

} // namespace

RecentRepositories::RecentRepositories(ScanModel &model, ContentPresenter &content,
                                       std::shared_ptr<TaskDispatcher> dispatcher)
    : m_model(model),
      m_content(content),
      m_dispatcher(std::move(dispatcher)),
      m_rows({{"title", [](const Row &row) { return row.title; }},
              {"detail", detailOf},
              {"exists", [](const Row &row) { return row.exists.value_or(false); }},
              {"isCurrent", [](const Row &row) { return row.isCurrent; }}})
{
    m_model.history().observe({.didChange = [this] { showHistory(); }});
    m_model.selection().observe({.didChange = [this] { showSelection(); }});
    showHistory();
}

void RecentRepositories::showHistory()
{
    m_rows.setRows(recentRows(m_model.history().get()));
    showSelection();
    Q_EMIT changed();
}

void RecentRepositories::showSelection()
{
    const auto &selection = m_model.selection().get();
    std::vector<Row> rows = m_rows.rows();
    for (Row &row : rows)
        row.isCurrent = selection && row.folder == std::filesystem::path(selection->path());
    m_rows.updateRows(std::move(rows));
}

void RecentRepositories::checkFolders()
{
    // One thread each, so that a hanging disk delays no other.
    for (const Row &row : m_rows.rows())
        check(row.folder);
}

void RecentRepositories::check(const std::filesystem::path &folder)
{
    // Without a thread the folder stays disabled; the dialog remains.
    inBackground(
        this, m_dispatcher, [folder] { return isFolder(folder); },
        [this, folder](bool exists) { setExists(folder, exists); });
}

void RecentRepositories::setExists(const std::filesystem::path &folder, bool exists)
{
    std::vector<Row> rows = m_rows.rows();
    for (Row &row : rows)
        if (row.folder == folder)
            row.exists = exists;
    m_rows.updateRows(std::move(rows));
}

void RecentRepositories::choose(int row)
{
    if (row < 0 || row >= count())
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
