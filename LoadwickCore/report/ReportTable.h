#pragma once

#include <chrono>
#include <optional>
#include <string>

namespace Loadwick {

struct ScanReport;

/// A report as a table for other programs: a row for the total, for each category and for each
/// instruction file; names, paths and figures, no contents. Each row begins with the repository and
/// the date of the scan, so that tables can be joined. The bytes are those of a `CsvTable`.
namespace ReportTable {

/// Rows in the report's order, then the files by tier, then those that could not be read. A cell
/// that does not apply to a row is empty, and the date (ISO 8601 in UTC) where it is not known. The
/// column "Source" says which figures are estimates.
[[nodiscard]] std::string bytes(const ScanReport &report,
                                std::optional<std::chrono::sys_seconds> scanned);

} // namespace ReportTable

} // namespace Loadwick
