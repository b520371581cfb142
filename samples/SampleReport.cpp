#include "samples/SampleReport.h"

namespace Loadwick {

ProbeResult sampleProbeResult()
{
    return {.sessionID = "0b8e6c1e-5f0a-4a57-9f0c-0c9d5f1e7a11",
            .authoritativeTotal = 27'654,
            .totalSource = TotalSource::transcript,
            .selfReportedSlabs =
                std::vector<SelfReportedSlab>{{.name = "System prompt", .tokens = 14'210},
                                              {.name = "Tools", .tokens = 812}},
            .duration = 12.5,
            .resolvedCLIPath = "/usr/local/bin/claude"};
}

ScanReport sampleReport()
{
    const ProbeResult probe = sampleProbeResult();
    return {.repositoryName = "webshop",
            .repositoryPath = "/home/someone/webshop",
            .total = probe.authoritativeTotal,
            .totalSource = probe.totalSource,
            .sessionID = probe.sessionID,
            .resolvedCLIPath = probe.resolvedCLIPath,
            .duration = probe.duration,
            .rows = {{.name = "System prompt",
                      .tokens = 14'210,
                      .provenance = Provenance::selfReported,
                      .ordinal = 0},
                     {.name = "Unattributed",
                      .tokens = 12'632,
                      .provenance = Provenance::remainder,
                      .ordinal = 2},
                     {.name = "Tools",
                      .tokens = 812,
                      .provenance = Provenance::selfReported,
                      .ordinal = 1}},
            .fileSet = {},
            .band = OpinionBand::lean,
            .remainder = 12'632,
            .overAttributed = false,
            .categoriesSelfReported = true};
}

} // namespace Loadwick
