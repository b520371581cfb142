#pragma once

#include "probe/ProbeRunning.h"
#include "report/ScanReport.h"

namespace Loadwick {

/// The result of a plain session: 27,654 tokens, two self-reported categories.
[[nodiscard]] ProbeResult sampleProbeResult();

/// A plain report of 27,654 tokens in three rows that add up. A test changes the fields that matter
/// to it.
[[nodiscard]] ScanReport sampleReport();

} // namespace Loadwick
