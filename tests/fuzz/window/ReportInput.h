#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "history/RecordedScan.h"
#include "history/WeeklyKPIReader.h"
#include "report/ScanReport.h"
#include "text/TextLocale.h"

namespace Loadwick {

/// A whole report, made as the program makes it, of a random total, answer and files. The first
/// line of the input has the total, the place of a locale and the duration in milliseconds; the
/// second is the repository's path. A line that begins with "+" adds to the files ("+r 12 path" of
/// 12 bytes, "+i" and "+p" for the other tiers, ">importer" behind a path), the unreadable paths
/// ("+u path"), the totals recorded before ("+h 12") or the weekly log ("+w 12 34"). All others are
/// the session's answer.
struct ReportInput
{
    TextLocale locale;
    ScanReport report;
    std::vector<RecordedScan> history; ///< the report's scan last
    std::optional<WeeklyKPILine> weekly;

    /// Nothing for figures whose sum might overflow, which ends the program by design.
    [[nodiscard]] static std::optional<ReportInput> of(std::string_view bytes);
};

} // namespace Loadwick
