#pragma once

#include <span>
#include <string>

#include "history/RecordedScan.h"

/// Recorded scans as tables for other programs: names, dates and totals, nothing else. Dates are
/// ISO 8601 in UTC, tokens plain integers. The bytes are those of a `CsvTable`.
namespace Loadwick::ScanTables {

/// One row per scan, in the order given.
[[nodiscard]] std::string totals(std::span<const RecordedScan> scans);

/// The same, with a column after the total for every category of any scan, in the order of
/// `ScanHistory::categoryAxis`; empty where a scan lacks the category. The column's head says that
/// it holds estimates. Categories of one scan that share a name are summed. Overflow ends the
/// program.
[[nodiscard]] std::string categories(std::span<const RecordedScan> scans);

} // namespace Loadwick::ScanTables
