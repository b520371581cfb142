#include "shell/RecentRepositories.h"

#include <exception>
#include <set>
#include <string>
#include <system_error>
#include <utility>

#include <QPointer>

#include "history/ScanHistory.h"
#include "shell/QtText.h"

namespace Loadwick {
namespace {

bool isFolder(const std::filesystem::path &path)
{
    std::error_code error;
    return std::filesystem::is_directory(path, error);
}

std::vector<RecentRows::Row> recentRows(std::span<const RecordedScan> history)
{
    std::vector<RecentRows::Row> rows;
    std::set<std::string> listed;
    for (const RecordedScan &scan : ScanHistory::newestFirst(history)) {
        if (rows.size() == RecentRepositories::longestList)
            break;
        if (listed.insert(scan.repositoryPath).second)
            rows.push_back({.title = qtText(scan.repositoryName),
                            .detail = qtText(scan.repositoryPath),
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
    showHistory();
}

void RecentRepositories::showHistory()
{
    m_rows.setRows(recentRows(m_model.history().get()));
    Q_EMIT changed();
}

void RecentRepositories::look()
{
    // Each on a thread of its own: a disk that hangs holds up no other.
    for (const RecentRows::Row &row : m_rows.rows())
        lookFor(row.folder);
}

void RecentRepositories::lookFor(const std::filesystem::path &folder)
{
    const QPointer<RecentRepositories> recent(this);
    try {
        m_dispatcher->runInBackground([recent, folder, dispatcher = m_dispatcher] {
            dispatcher->postToInterface([recent, folder, isThere = isFolder(folder)] {
                if (recent)
                    recent->m_rows.setIsThere(folder, isThere);
            });
        });
    } catch (const std::exception &) {
        // No thread is to be had: the dialog remains.
    }
}

void RecentRepositories::choose(int row)
{
    const auto &rows = m_rows.rows();
    if (row < 0 || row >= count() || !rows[static_cast<std::size_t>(row)].isThere)
        return;
    m_content.choose(std::filesystem::path(rows[static_cast<std::size_t>(row)].folder));
}

} // namespace Loadwick
