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
                   ? QStringLiteral("Every recorded scan, newest first, across every repository.")
                   : QStringLiteral("The newest 30 of ") + QString::number(history.size()) +
                         QStringLiteral(" recorded scans, across every repository.");
    Q_EMIT changed();
}

} // namespace Loadwick
