#pragma once

#include <chrono>
#include <cstdint>
#include <string>
#include <vector>

#include "history/RecordedCategory.h"
#include "report/OpinionBand.h"
#include "report/ScanReport.h"
#include "text/Uuid.h"

namespace Loadwick {

/// One scan as the history keeps it: totals and category names, never contents of a file.
struct RecordedScan
{
    Uuid id;
    std::string repositoryName;
    std::string repositoryPath; ///< the key by which scans of one repository belong together
    std::chrono::sys_seconds date;
    std::int64_t total;                       ///< tokens
    std::vector<RecordedCategory> categories; ///< in the report's row order

    [[nodiscard]] static RecordedScan fromReport(const ScanReport &report,
                                                 std::chrono::sys_seconds date, const Uuid &id);

    [[nodiscard]] OpinionBand band() const noexcept { return OpinionBand::band(total); }

    friend bool operator==(const RecordedScan &, const RecordedScan &) = default;
};

} // namespace Loadwick
