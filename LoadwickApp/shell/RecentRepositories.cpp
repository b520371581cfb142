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

std::vector<RecentRows::Row> recentRows(std::span<const RecordedScan> history)
{
    std::vector<RecentRows::Row> rows;
    std::set<std::string> listed;
    for (const RecordedScan &scan : ScanHistory::newestFirst(history)) {
        if (rows.size() == RecentRepositories::longestList)
            break;
        if (listed.insert(scan.repositoryPath).second)
            rows.push_back({.title = qtText(scan.repositoryName),
                            .place = shownPath(scan.repositoryPath),
                            .folder = scan.repositoryPath});
    }
    return rows;
}

} // namespace

RecentRepositories::RecentRepositories(ScanModel &model, ContentPresenter &content,
                                       std::shared_ptr<TaskDispatcher> dispatcher)
    : m_model(model), m_content(content), m_dispatcher(std::move(dispatcher))
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
    m_rows.setCurrent(selection ? std::optional<std::filesystem::path>(selection->path())
                                : std::nullopt);
}

void RecentRepositories::look()
{
    // Each on a thread of its own: a disk that hangs holds up no other.
    for (const RecentRows::Row &row : m_rows.rows())
        lookFor(row.folder);
}

void RecentRepositories::lookFor(const std::filesystem::path &folder)
{
    // Without a thread the folder stays disabled; the dialog remains.
    inBackground(
        this, m_dispatcher, [folder] { return isFolder(folder); },
        [this, folder](bool isThere) { m_rows.setIsThere(folder, isThere); });
}

void RecentRepositories::choose(int row)
{
    if (row < 0 || row >= count())
        return;
    const RecentRows::Row chosen = m_rows.rows()[static_cast<std::size_t>(row)];
    if (!chosen.isThere.value_or(false))
        return;
    if (chosen.isCurrent)
        m_content.setPageIndex(AppPage::overview);
    else
        m_content.choose(chosen.folder);
}

} // namespace Loadwick

#include "moc_RecentRepositories.cpp"
