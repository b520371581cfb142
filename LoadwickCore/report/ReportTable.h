#pragma once

#include <string>

namespace Loadwick {

struct ScanReport;

/// A report as a table for other programs: a row for the total, for each category and for each
/// instruction file; names, paths and figures, no contents. The bytes are those of a `CsvTable`.
namespace ReportTable {

/// Rows in the report's order, then the files by tier, then those that could not be read. A cell
/// that does not apply to a row is empty. The column "Source" says which figures are estimates.
[[nodiscard]] std::string bytes(const ScanReport &report);

} // namespace ReportTable

} // namespace Loadwick
