#include "report/ScanReportBuilder.h"

#include <utility>

#include "report/SlabAttributor.h"

namespace Loadwick::ScanReportBuilder {

ScanReport build(const RepoSelection &selection, const ProbeResult &probe,
                 const InstructionFileSet &files)
{
    AttributionOutcome outcome = SlabAttributor::attribute(
        probe.authoritativeTotal, probe.selfReportedSlabs, files.localCategories());
    return {.repositoryName = selection.displayName,
            .repositoryPath = selection.path(),
            .total = probe.authoritativeTotal,
            .totalSource = probe.totalSource,
            .sessionID = probe.sessionID,
            .resolvedCLIPath = probe.resolvedCLIPath,
            .duration = probe.duration,
            .rows = std::move(outcome.rows),
            .fileSet = files,
            .band = OpinionBand::band(probe.authoritativeTotal),
            .remainder = outcome.remainder,
            .overAttributed = outcome.overAttributed,
            .categoriesSelfReported = outcome.categoriesSelfReported};
}

} // namespace Loadwick::ScanReportBuilder
