#include "trends/RecordedDataPresenter.h"

#include <set>
#include <string_view>

#include "report/NumberText.h"
#include "shell/QtText.h"

namespace Loadwick {
namespace {

QString counted(std::size_t count, const char *singular, const char *plural)
{
    return QString::number(count) + QString::fromLatin1(count == 1 ? singular : plural);
}

std::size_t repositoryCount(const std::vector<RecordedScan> &history)
{
    std::set<std::string_view> paths;
    for (const RecordedScan &scan : history)
        paths.insert(scan.repositoryPath);
    return paths.size();
}

} // namespace

void RecordedDataPresenter::showHistory()
{
    const std::vector<RecordedScan> &history = m_model.history().get();
    m_storageNote =
        counted(history.size(), " scan", " scans") + QStringLiteral(" across ") +
        counted(repositoryCount(history), " repository", " repositories") +
        QStringLiteral(", stored on this Mac. Totals only — no instruction-file contents are ever "
                       "written. The newest ") +
        qtText(NumberText::grouped(std::int64_t{ScanHistoryStore::maximumScans}, m_locale)) +
        QStringLiteral(" are kept.");
    m_deleteTitle =
        QStringLiteral("Delete ") + counted(history.size(), " Recorded Scan", " Recorded Scans");
    Q_EMIT changed();
}

void RecordedDataPresenter::clear()
{
    m_model.clearHistory();
}

} // namespace Loadwick
