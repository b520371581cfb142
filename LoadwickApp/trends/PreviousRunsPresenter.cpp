#include "trends/PreviousRunsPresenter.h"

#include <algorithm>

#include "history/ScanHistory.h"

namespace Loadwick {

void PreviousRunsPresenter::show(std::span<const RecordedScan> history)
{
    std::vector<RecordedScan> newest = ScanHistory::newestFirst(history);
    newest.erase(newest.begin() + static_cast<std::ptrdiff_t>(std::min(newest.size(), mostRows)),
                 newest.end());
    m_rows.setScans(std::move(newest));
    m_detail = history.size() <= mostRows
                   ? tr("Every recorded scan, newest first, across every repository.")
                   : tr("The newest 30 of %1 recorded scans, across every repository.")
                         .arg(history.size());
    Q_EMIT changed();
}

} // namespace Loadwick

#include "moc_PreviousRunsPresenter.cpp"
