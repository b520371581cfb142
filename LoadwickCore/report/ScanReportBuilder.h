#pragma once

#include "probe/ProbeResult.h"
#include "report/InstructionFileSet.h"
#include "report/RepoSelection.h"
#include "report/ScanReport.h"

/// The one place where a probe's result, the chosen repository and its files become a report.
namespace Loadwick::ScanReportBuilder {

[[nodiscard]] ScanReport build(const RepoSelection &selection, const ProbeResult &probe,
                               const InstructionFileSet &files);

} // namespace Loadwick::ScanReportBuilder
