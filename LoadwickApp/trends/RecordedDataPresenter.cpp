#include "trends/RecordedDataPresenter.h"

#include <set>
#include <string_view>

#include "base/QtText.h"
#include "text/NumberText.h"

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

QString RecordedDataPresenter::storageNote() const
{
    const std::vector<RecordedScan> &history = m_model.history().get();
    const std::size_t scans = history.size();
    const std::size_t repositories = repositoryCount(history);
    return tr("%1 across %2, stored on this Mac. Totals only — no instruction-file contents are "
              "ever "
              "written. The newest %3 are kept.")
        .arg((scans == 1 ? tr("%1 scan") : tr("%1 scans")).arg(scans),
             (repositories == 1 ? tr("%1 repository") : tr("%1 repositories")).arg(repositories),
             qtText(NumberText::grouped(std::int64_t{ScanHistoryStore::maximumScans}, m_locale)));
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
