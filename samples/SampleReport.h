#pragma once

#include "probe/ProbeRunning.h"
#include "report/ScanReport.h"

namespace Loadwick {

/// What a plain session measured: 27,654 tokens, two self-reported categories.
[[nodiscard]] ProbeResult sampleProbeResult();

/// A plain report of 27,654 tokens in three rows that add up. A test changes the fields it cares
/// for.
[[nodiscard]] ScanReport sampleReport();

} // namespace Loadwick
