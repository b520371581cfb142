#pragma once

#include <span>
#include <string>

#include "history/RecordedScan.h"

/// Recorded scans as tables for other programs: names, dates and totals, nothing else. Dates are
/// UTC by ISO 8601, tokens plain integers. The bytes are those of a `CsvTable`.
namespace Loadwick::ScanTables {

/// One row per scan, in the order given.
[[nodiscard]] std::string totals(std::span<const RecordedScan> scans);

/// One row per scan, in the order given, and after its total one column per category of any of
/// them, in the order of `ScanHistory::categoryAxis`; empty where the scan has no such category.
/// Its head says that it holds estimates. Rows of one scan that share a name are summed. Overflow
/// ends the program.
[[nodiscard]] std::string categories(std::span<const RecordedScan> scans);

} // namespace Loadwick::ScanTables
