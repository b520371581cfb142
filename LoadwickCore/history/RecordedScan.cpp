#include "history/RecordedScan.h"

#include "history/RecordedCategoryName.h"

namespace Loadwick {

RecordedScan RecordedScan::fromReport(const ScanReport &report, std::chrono::sys_seconds date,
                                      const Uuid &id)
{
    RecordedScan scan = {.id = id,
                         .repositoryName = report.repositoryName,
                         .repositoryPath = report.repositoryPath,
                         .date = date,
                         .total = report.total,
                         .categories = {}};
    scan.categories.reserve(report.rows.size());
    for (const SlabAttribution &row : report.rows)
        scan.categories.push_back(
            {.name = RecordedCategoryName::storable(row.name), .tokens = row.tokens});
    return scan;
}

} // namespace Loadwick
